#pragma once

#include "EditorWindow.h"

#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RecordingService.h"

#include <QScrollArea>

/// The editor on screen with three folded cards of two plans each, for tests that press its keys.
class KeyboardWindow
{
protected:
    void setUpWindow()
    {
        using namespace trel::mediadispatch;
        RecordingService& service = RecordingService::instance();
        service.reset();
        service.addProgram(1, "Film", 60000.0);
        for (int id = 1; id <= 3; ++id) {
            service.stored[id] = taskWithPlans(
                {timePlan(1, "08:00:00", "09:00:00"), frequencyPlan(2, "10:00:00", 2, {entry(1)})},
                id);
        }
        m_clock = std::make_unique<ClockAfterStart>();
        m_window = std::make_unique<EditorWindow>();
        m_window->dialog.slotShow();
        comeBack();
        m_clock->advance(2000);
        area()->setFocus();
        service.clearLog();
    }

    void tearDownWindow()
    {
        m_window.reset();
        m_clock.reset();
    }

    trel::mediadispatch::PlanTaskWidget& card(int index) const
    {
        return *m_window->panel().planList()->cards().at(index);
    }
    int cards() const { return m_window->panel().planList()->cards().size(); }
    QPushButton* bar(int index) const
    {
        return card(index).findChild<QPushButton*>(QStringLiteral("title"));
    }
    trel::mediadispatch::PlanTaskWidgetInspector rows(int index) const
    {
        return trel::mediadispatch::PlanTaskWidgetInspector(card(index));
    }
    QScrollArea* area() const { return m_window->panel().findChild<QScrollArea*>(); }

    /// After a prompt no window manager gives the focus back to the window below.
    void comeBack() const
    {
        m_window->dialog.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &m_window->dialog);
        QTRY_VERIFY(QApplication::focusWidget());
    }

    void press(const char* keys) const
    {
        const QKeySequence sequence = QKeySequence(QLatin1String(keys));
        constexpr uint kModifiers = Qt::KeyboardModifierMask;
        const auto key = static_cast<uint>(sequence[0]);
        QTest::keyClick(m_window->dialog.windowHandle(), static_cast<Qt::Key>(key & ~kModifiers),
                        static_cast<Qt::KeyboardModifiers>(key & kModifiers));
    }

    void focus(QWidget& widget) const
    {
        QCoreApplication::processEvents();
        widget.setFocus();
        QCOMPARE(QApplication::focusWidget(), &widget);
    }

    std::unique_ptr<ClockAfterStart> m_clock;
    std::unique_ptr<EditorWindow> m_window;
};
