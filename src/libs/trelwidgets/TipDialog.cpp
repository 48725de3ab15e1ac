#include "trelwidgets/TipDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace trel::widgets {

class TipDialog::Private
{
public:
    QLabel* text = nullptr;
    std::array<QPushButton*, 3> buttons{};
    int pressed = 0;
};

TipDialog::TipDialog(int, QWidget* parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    auto* layout = new QVBoxLayout(this);
    d->text = new QLabel(this);
    layout->addWidget(d->text);
    for (std::size_t i = 0; i < d->buttons.size(); ++i) {
        d->buttons[i] = new QPushButton(this);
        layout->addWidget(d->buttons[i]);
        connect(d->buttons[i], &QPushButton::clicked, this, [this, i] {
            d->pressed = static_cast<int>(i) + 1;
            accept();
        });
    }
}

TipDialog::~TipDialog() = default;

void TipDialog::setTipText(const QString& text)
{
    d->text->setText(text);
}

void TipDialog::setBtnText(const QString& first, const QString& second, const QString& third)
{
    const std::array<QString, 3> texts{first, second, third};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        d->buttons[i]->setText(texts[i]);
        d->buttons[i]->setVisible(!texts[i].isEmpty());
    }
}

PromptBoxTriggerInfo TipDialog::run()
{
    exec();
    deleteLater();
    return {d->pressed};
}

} // namespace trel::widgets
