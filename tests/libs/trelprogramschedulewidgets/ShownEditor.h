#pragma once

#include "EditorWindow.h"

#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "support/PlanRecords.h"
#include "support/RecordingService.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

/// The editor on screen with an open card, whose first two plans collide and whose third does not,
/// and a folded one.
class ShownEditor
{
public:
    ShownEditor()
    {
        using namespace trel::mediadispatch;
        RecordingService& service = RecordingService::instance();
        service.reset();
        service.addProgram(1, "Film", 60000.0);
        for (int id = 1; id <= 2; ++id) {
            service.stored[id] = taskWithPlans({timePlan(1, "08:00:00", "09:00:00"),
                                                timePlan(2, "08:30:00", "09:30:00"),
                                                frequencyPlan(3, "12:00:00", 2, {entry(1)})},
                                               id);
            for (PlayPlan& plan : service.stored[id].plans) {
                plan.programs = {entry(1)};
            }
        }
        m_window.dialog.slotShow();
        QCoreApplication::processEvents();
        card(0).findChild<QPushButton*>(QStringLiteral("title"))->click();
        QCoreApplication::processEvents();
    }

    QDialog& dialog() { return m_window.dialog; }
    trel::mediadispatch::centerWidget& panel() const { return m_window.panel(); }
    trel::mediadispatch::PlanTaskWidget& card(int index) const
    {
        return *panel().planList()->cards().at(index);
    }

private:
    ClockAfterStart m_clock;
    EditorWindow m_window;
};

/// A widget as it looks on a screen with so many pixels to a unit.
inline QImage drawn(QWidget& widget, int ratio = 1)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}
