#include "trelwidgets/Dialog.h"

#include <QVBoxLayout>

namespace trel::widgets {

class Dialog::Private
{
public:
    QWidget* client = nullptr;
};

Dialog::Dialog(QWidget* parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    d->client = new QWidget(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->client);
}

Dialog::~Dialog() = default;

QWidget* Dialog::dialogWidget() const
{
    return d->client;
}

void Dialog::setTitle(const QString& title)
{
    setWindowTitle(title);
}

void Dialog::setScaleSwitch(const QSize& compact, const QSize&)
{
    resize(compact);
}

} // namespace trel::widgets
