#include "kCustomLineEdit.h"

#include "service/scheduleManage.h"
#include "toolkit/NewWidgets.h"
#include "ui_kCustomLineEdit.h"

#include <QFontMetrics>
#include <QPointer>

#include <initializer_list>

namespace trel::mediadispatch {

namespace {

constexpr int kTextWidth = 134;

// Texts are measured in this font whatever font a style sheet shows them in, so that a text is cut
// at the same letter under every theme.
QFontMetrics textMetrics()
{
    QFont font;
    font.setFamily(QStringLiteral("Microsoft YaHei"));
    font.setPointSize(11);
    return QFontMetrics(font);
}

} // namespace

kCustomLineEdit::kCustomLineEdit(QWidget* parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::kCustomLineEdit>())
{
    m_ui->setupUi(this);
    takeBackLayoutRequest(*this);
    takeBackLayoutRequest(*m_ui->frame);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("style", QStringLiteral("BG3"));
    m_ui->pushButton->setProperty("imageBtn", QStringLiteral("add"));
    for (QPushButton* const half :
         std::initializer_list<QPushButton*>{m_ui->pushButton, m_ui->lineEdit}) {
        half->setFocusPolicy(Qt::NoFocus);
        connect(half, &QPushButton::clicked, this, &kCustomLineEdit::slotClicked);
    }
}

kCustomLineEdit::~kCustomLineEdit() = default;

void kCustomLineEdit::setText(QString& text)
{
    const QFontMetrics metrics = textMetrics();
    // The cutter would pick one of the lengths that U+009C keeps apart, whatever room there is.
    if (metrics.horizontalAdvance(text) >= kTextWidth) {
        text = metrics.elidedText(text, Qt::ElideRight, kTextWidth);
    }
    m_ui->lineEdit->setPlainText(text);
}

QString kCustomLineEdit::text() const
{
    return m_ui->lineEdit->text();
}

void kCustomLineEdit::slotClicked()
{
    if (!sender()) {
        return;
    }
    // The chooser runs inside the signal, and the row may be gone when it closes.
    const QPointer<kCustomLineEdit> self(this);
    emit signalClicked(m_row);
    if (!self) {
        return;
    }
    QString selected =
        QString::fromStdString(scheduleManage::getInstance().getqstrSelectedProgram());
    setText(selected);
}

} // namespace trel::mediadispatch
