#pragma once

#include "CardLines.h"
#include "centerWidget.h"
#include "scheduleControlUI.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RefusedConnections.h"
#include "support/TestClock.h"

#include <QList>
#include <QPointer>
#include <QtTest>

#include <initializer_list>
#include <memory>

/// The rows of the card on the stage: the second plan has the id of the first, so that an end that
/// is worked out for it is held against the start of the first, and refused.
inline constexpr int kSameIdRow = 1;
inline constexpr int kPlainRow = 2;

/// Stores two tasks that overlap; the first is the one with the rows above.
void storeStageTasks();

/// The editor on screen, with the card of a task open, and a hand that destroys part of it.
class Stage
{
public:
    explicit Stage(const QString& victim);
    ~Stage();

    trel::mediadispatch::PlanTaskWidgetInspector& rows() const { return *m_rows; }
    trel::mediadispatch::PlanTaskWidget& card() const { return *m_card; }
    PlanList& list() const { return *panel().planList(); }
    trel::mediadispatch::centerWidget& panel() const
    {
        return *m_dialog->findChild<trel::mediadispatch::centerWidget*>();
    }
    trel::mediadispatch::scheduleControlUI& dialog() const { return *m_dialog; }
    template <typename T>
    T& named(const QWidget& parent, const char* name) const
    {
        return *parent.findChild<T*>(QLatin1String(name));
    }

    /// Destroys the victim: "card", "task", "list", "panel", "dialog", or all cards by a "refresh".
    void destroy();

    /// Tells which widgets the toolkit is at work with while the prompt is on screen.
    void use(std::initializer_list<QWidget*> widgets)
    {
        for (QWidget* widget : widgets) {
            m_inUse.append(widget);
        }
    }
    const QList<QPointer<QWidget>>& inUse() const { return m_inUse; }
    bool isCardGone() const { return m_card.isNull(); }

private:
    RefusedConnections m_refused;
    TestClock m_clock{QDateTime(QDate(2024, 3, 10), QTime(12, 0))};
    QString m_victim;
    QPointer<trel::mediadispatch::scheduleControlUI> m_dialog;
    QPointer<trel::mediadispatch::PlanTaskWidget> m_card;
    std::unique_ptr<trel::mediadispatch::PlanTaskWidgetInspector> m_rows;
    QList<QPointer<QWidget>> m_inUse;
};

/// Destroys the victim as soon as the first refusal or question runs its event loop.
class EndOnPrompt : public QObject
{
public:
    explicit EndOnPrompt(Stage& stage)
        : m_stage(stage)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Stage& m_stage;
    bool m_isDone = false;
};
