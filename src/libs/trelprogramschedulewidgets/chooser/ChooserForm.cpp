#include "ChooserForm.h"

#include "ScheduleText.h"
#include "service/ProgramTotal.h"

#include <QShortcut>

namespace trel::mediadispatch {

void ChooserForm::translate()
{
    label->setText(scheduleText("szProgramLstStr"));
    label_2->setText(scheduleText("szPlanLstStr"));
    tipLab->setText(scheduleText("zhOnlyOne"));
    pushButtonDelete->setText(scheduleText("szDeleteStr"));
    label_timeWord->setText(scheduleText("zhTotalDuration"));
    label_timeWord->setAccessibleName(scheduleText("zhTotalDuration").trimmed());
    overTimeTip->setText(scheduleText("zhOverTimeTips"));
    okBtn->setText(scheduleText("zhFixAct"));
    cancelBtn->setText(scheduleText("zhCancelAct"));

    pushButtonChonse->setAccessibleName(scheduleText("zhSelectProgramsStr"));
    UpBtn->setAccessibleName(scheduleText("zhProgMoveUp"));
    DownBtn->setAccessibleName(scheduleText("zhProgMoveDown"));
    tableViewProgramList->setAccessibleName(scheduleText("szProgramLstStr"));
    tableViewChoonse->setAccessibleName(scheduleText("szPlanLstStr"));
}

void ChooserForm::confirmByKey()
{
    // A table whose editor is open keeps these keys from the window; a shortcut comes before it.
    // One that belongs to the button is out of force while the button is.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const shortcut = new QShortcut(int(Qt::ControlModifier) | int(key), okBtn);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, okBtn, &QPushButton::click);
    }
}

void ChooserForm::showTip(const char* key)
{
    tipLab->setText(scheduleText(key));
    overTimeTip->hide();
    tipLab->show();
    warningLab->show();
}

void ChooserForm::hideTip()
{
    tipLab->hide();
    warningLab->hide();
}

void ChooserForm::showTotal(double totalMs)
{
    if (exceedsDay(totalMs)) {
        hideTip();
        overTimeTip->show();
    } else {
        overTimeTip->hide();
    }
    showTime_label->setText(totalText(totalMs));
}

} // namespace trel::mediadispatch
