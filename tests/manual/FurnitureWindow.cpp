#include "FurnitureWindow.h"

#include "DialogWidget.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "TitleBar.h"
#include "tstranslate/Translator.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <vector>

using trel::mediadispatch::DialogWidget;
using trel::mediadispatch::ProgramSheduleWidgetTranslateManager;
using trel::mediadispatch::TitleBar;

namespace {

const QColor kDesktop(0x6a, 0x7a, 0x8c);

QString styleSheetOfTheDialogs()
{
    QFile file(QStringLiteral(":/qss/qss/dialog.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QImage imageOf(QWidget& widget)
{
    widget.show();
    QCoreApplication::processEvents();
    return widget.grab().toImage();
}

} // namespace

FurnitureWindow::FurnitureWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_titleBar(new TitleBar(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setStyleSheet(styleSheetOfTheDialogs());
    resize(820, 220);
    m_titleBar->setTitleContent(QStringLiteral("Window furniture"));
    auto* languages = m_titleBar->findChild<QComboBox*>(QStringLiteral("ComboxTrans"));
    languages->addItems({QStringLiteral("English"), QStringLiteral("中文")});
    languages->show();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addWidget(buildContent(), 1);
    connectTitleBar();
    m_titleBar->setButtonType(TitleBar::NormalWindow);
}

QWidget* FurnitureWindow::buildContent()
{
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("windowContent"));
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(28, 20, 28, 20);
    layout->setSpacing(10);
    layout->addWidget(new QLabel(QStringLiteral(
        "Drag the bar, double click it, try its buttons and its language box; then the dialogs:")));
    const auto addDialog = [&](const QString& name, Dialog (FurnitureWindow::*make)()) {
        auto* button = new QPushButton(name);
        button->setObjectName(QStringLiteral("dialogCancelBtn"));
        connect(button, &QPushButton::clicked, this, [=] { run(name, (this->*make)()); });
        layout->addWidget(button, 0, Qt::AlignLeft);
    };
    addDialog(QStringLiteral("A note"), &FurnitureWindow::note);
    addDialog(QStringLiteral("A question"), &FurnitureWindow::question);
    addDialog(QStringLiteral("A form"), &FurnitureWindow::form);
    content->findChild<QPushButton*>()->setFocus();
    layout->addStretch();
    return content;
}

void FurnitureWindow::connectTitleBar()
{
    connect(m_titleBar, &TitleBar::signalButtonMinClicked, this, &QWidget::showMinimized);
    connect(m_titleBar, &TitleBar::signalButtonMaxClicked, this, &QWidget::showMaximized);
    connect(m_titleBar, &TitleBar::signalButtonRestoreClicked, this, &QWidget::showNormal);
    connect(m_titleBar, &TitleBar::signalButtonCloseClicked, this, &QWidget::close);
    connect(m_titleBar, &TitleBar::signalTranslate, this, &FurnitureWindow::selectLanguage);
    connect(m_titleBar, &TitleBar::signalMove, this,
            [](int x, int y) { qInfo("moved to %d, %d", x, y); });
}

void FurnitureWindow::selectLanguage()
{
    const auto* languages = m_titleBar->findChild<QComboBox*>(QStringLiteral("ComboxTrans"));
    ProgramSheduleWidgetTranslateManager::instance().translator().switchLanguage(
        languages->currentIndex() == 0 ? QStringLiteral("en_GB") : QStringLiteral("zh_CN"));
    m_titleBar->retranslate();
}

void FurnitureWindow::run(const QString& name, Dialog dialog)
{
    qInfo("%s answered %d", qPrintable(name), dialog->exec());
}

FurnitureWindow::Dialog FurnitureWindow::note()
{
    auto dialog = std::make_unique<DialogWidget>(this);
    dialog->setTipText(QStringLiteral("The schedule has been sent to three screens."),
                       Qt::AlignLeft | Qt::AlignVCenter);
    dialog->setButtons(DialogWidget::AcceptButton);
    return dialog;
}

FurnitureWindow::Dialog FurnitureWindow::question()
{
    auto dialog = std::make_unique<DialogWidget>(this);
    dialog->setTitle(QStringLiteral("Replace the running program?"));
    dialog->setTipText(QStringLiteral("Screen 2 plays \"Spring offers\" until 18:00.\n"
                                      "The new program starts at once."),
                       Qt::AlignCenter);
    dialog->setButtonEnabled(DialogWidget::RejectButton, false);
    dialog->resize(520, 180);
    return dialog;
}

FurnitureWindow::Dialog FurnitureWindow::form()
{
    auto dialog = std::make_unique<DialogWidget>(this);
    dialog->setTitle(QStringLiteral("New playlist"));
    auto* content = new QWidget;
    auto* layout = new QFormLayout(content);
    layout->setContentsMargins(28, 20, 28, 20);
    layout->setSpacing(12);
    layout->addRow(QStringLiteral("Name"), new QLineEdit(QStringLiteral("Weekend")));
    layout->addRow(QStringLiteral("Screen"), new QLineEdit(QStringLiteral("Entrance")));
    dialog->setContentWidget(content);
    dialog->setButtons(DialogWidget::AcceptButton | DialogWidget::CancelButton);
    dialog->resize(420, 200);
    return dialog;
}

QImage FurnitureWindow::picture()
{
    std::vector<QImage> images{imageOf(*this)};
    m_titleBar->setButtonType(TitleBar::MaximisedWindow);
    m_titleBar->hideTranslationCombo();
    images.push_back(imageOf(*m_titleBar));
    for (const auto make :
         {&FurnitureWindow::note, &FurnitureWindow::question, &FurnitureWindow::form}) {
        const Dialog dialog = (this->*make)();
        images.push_back(imageOf(*dialog));
    }

    constexpr int kGap = 24;
    QSize size(0, kGap);
    for (const QImage& image : images) {
        size.setWidth(qMax(size.width(), image.width() + 2 * kGap));
        size.rheight() += image.height() + kGap;
    }
    QImage whole(size, QImage::Format_RGB32);
    whole.fill(kDesktop);
    QPainter painter(&whole);
    int y = kGap;
    for (const QImage& image : images) {
        painter.drawImage(kGap, y, image);
        y += image.height() + kGap;
    }
    return whole;
}
