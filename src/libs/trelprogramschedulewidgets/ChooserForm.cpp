#include "ChooserForm.h"

#include "ScheduleText.h"
#include "service/ProgramTotal.h"

namespace trel::mediadispatch {

void ChooserForm::translate()
{
    label->setText(scheduleText("szProgramLstStr"));
    label_2->setText(scheduleText("szPlanLstStr"));
    tipLab->setText(scheduleText("zhOnlyOne"));
    pushButtonDelete->setText(scheduleText("szDeleteStr"));
    label_timeWord->setText(scheduleText("zhTotalDuration"));
    overTimeTip->setText(scheduleText("zhOverTimeTips"));
    okBtn->setText(scheduleText("zhFixAct"));
    cancelBtn->setText(scheduleText("zhCancelAct"));

    pushButtonChonse->setAccessibleName(scheduleText("zhSelectProgramsStr"));
    UpBtn->setAccessibleName(scheduleText("zhProgMoveUp"));
    DownBtn->setAccessibleName(scheduleText("zhProgMoveDown"));
    tableViewProgramList->setAccessibleName(scheduleText("szProgramLstStr"));
    tableViewChoonse->setAccessibleName(scheduleText("szPlanLstStr"));
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
