#include "PlanTaskWidget.h"

#include "PlanStandardItemModel.h"
#include "PlanTable.h"
#include "Prompts.h"
#include "ScheduleText.h"

#include "ui_PlanTaskWidget.h"

#include <QApplication>
#include <QDate>
#include <QEnterEvent>
#include <QToolTip>

namespace trel::mediadispatch {

namespace {

constexpr int kCardWidth = 1100;

QDate dateFromText(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), kDateFormat);
}

void showToolTip(const QEvent& event, const QString& text, QPushButton* button)
{
    QToolTip::showText(static_cast<const QEnterEvent&>(event).globalPos(), text, button);
}

} // namespace

PlanTaskWidget::PlanTaskWidget(const PlayTask& task, QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::PlanTaskWidget>())
    , m_task(task)
{
    qRegisterMetaType<ComBoxType>("ComBoxType");
    setUpCard();
    setUpTable();
    showDates();
    makeConnections();
}

PlanTaskWidget::~PlanTaskWidget() = default;

void PlanTaskWidget::setUpCard()
{
    setFixedWidth(kCardWidth);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("style", QStringLiteral("BG1"));

    m_ui->setupUi(this);
    m_ui->pbtCreatCopy->installEventFilter(this);
    m_ui->pushButtonDelete->installEventFilter(this);
    m_ui->arrow->setProperty("labelImage", QStringLiteral("down"));
    translateFrame();
}

void PlanTaskWidget::setUpTable()
{
    m_model = new PlanStandardItemModel(this);
    setUpPlanTable(*m_ui->tableView, *m_model);
    m_ui->tableView->viewport()->installEventFilter(this);
}

void PlanTaskWidget::showDates()
{
    m_ui->dateEditVaildStartTime->setDate(dateFromText(m_task.startDate));
    m_ui->dateEditVaildEndTime->setDate(dateFromText(m_task.endDate));
}

void PlanTaskWidget::makeConnections()
{
    connect(m_ui->title, &QPushButton::toggled, this, &PlanTaskWidget::slotFold);
    connect(m_ui->pushButtonDelete, &QPushButton::clicked, this, &PlanTaskWidget::slotDeleteTask);
    connect(m_ui->pbtCreatCopy, &QPushButton::clicked, this, &PlanTaskWidget::slotCopyTask);
}

void PlanTaskWidget::setFolded(bool folded)
{
    m_ui->title->setChecked(folded);
}

bool PlanTaskWidget::isFolded() const
{
    return m_ui->title->isChecked();
}

void PlanTaskWidget::slotFold(bool isFold)
{
    m_ui->arrow->setProperty("labelImage",
                             isFold ? QStringLiteral("right") : QStringLiteral("down"));
    // A style sheet looks at a property again only when the style is set anew.
    m_ui->arrow->setStyle(QApplication::style());
    m_ui->widget->setVisible(!isFold);
    adjustSize();
}

bool PlanTaskWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter) {
        if (watched == m_ui->pbtCreatCopy) {
            showToolTip(*event, scheduleText("zhCreateCopy"), m_ui->pbtCreatCopy);
        } else if (watched == m_ui->pushButtonDelete) {
            showToolTip(*event, scheduleText("szDeleteStr"), m_ui->pushButtonDelete);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PlanTaskWidget::slotDeleteTask()
{
    if (askConfirmation(scheduleText("szDeleteTaskConfirmStr"))) {
        emit signalDeleteTask(m_task.id);
    }
}

void PlanTaskWidget::slotCopyTask()
{
    emit signalCopyTask(m_task.id);
}

void PlanTaskWidget::translateFrame()
{
    m_ui->title->setText(
        QStringLiteral("%1%2    ").arg(scheduleText("zhPlayTaskStr"), QString::number(m_task.id)));
    m_ui->labelvalidTime->setText(scheduleText("zhEffectiveStr") + scheduleText("zhFromStr"));
    m_ui->labelTo->setText(scheduleText("zhToStr"));
}

void PlanTaskWidget::slotTranslation()
{
    translateFrame();
    m_ui->pbtCreatCopy->setToolTip(scheduleText("zhCreateCopy"));
    m_ui->pushButtonDelete->setToolTip(scheduleText("szDeleteStr"));
}

} // namespace trel::mediadispatch
