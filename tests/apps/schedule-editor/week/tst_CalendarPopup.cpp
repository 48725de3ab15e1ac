#include "week/CalendarPopup.h"

#include "support/TestProgram.h"

#include <QAbstractItemView>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using trel::desktop::week::CalendarPopup;

/// The calendar that opens over the window.
class tst_CalendarPopup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void enterChoosesTheDay();
    void escapeChoosesNone();
    void aDateTypedHalfWayIsDropped();

private:
    QAbstractItemView& days() const
    {
        return *m_popup->findChild<QAbstractItemView*>(QStringLiteral("qt_calendar_calendarview"));
    }

    std::unique_ptr<QWidget> m_window;
    QPointer<CalendarPopup> m_popup;
    std::unique_ptr<QSignalSpy> m_chosen;
};

void tst_CalendarPopup::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    m_window->show();
    m_popup = new CalendarPopup(QDate(2026, 3, 10), m_window.get());
    m_chosen = std::make_unique<QSignalSpy>(m_popup, &CalendarPopup::chosen);
    m_popup->showBelow(*m_window);
}

void tst_CalendarPopup::cleanup()
{
    m_chosen.reset();
    m_window.reset();
}

void tst_CalendarPopup::enterChoosesTheDay()
{
    QTest::keyClick(&days(), Qt::Key_Right);
    QTest::keyClick(&days(), Qt::Key_Return);
    QCOMPARE(m_chosen->count(), 1);
    QCOMPARE(m_chosen->at(0).at(0).toDate(), QDate(2026, 3, 11));
    QTRY_VERIFY(!m_popup);
}

void tst_CalendarPopup::escapeChoosesNone()
{
    QTest::keyClick(&days(), Qt::Key_Escape);
    QTRY_VERIFY(!m_popup);
    QCOMPARE(m_chosen->count(), 0);
}

/// The toolkit shows what is typed in a label over the days.
void tst_CalendarPopup::aDateTypedHalfWayIsDropped()
{
    const auto before = m_popup->findChildren<QFrame*>();
    QTest::keyClicks(&days(), QStringLiteral("12"));
    auto more = m_popup->findChildren<QFrame*>();
    for (QFrame* const frame : before) {
        more.removeOne(frame);
    }
    // A frame, and the label in it.
    QCOMPARE(more.size(), 2);
    const QPointer<QFrame> label = more.first();
    QVERIFY(label->isVisible());

    // Without the window that holds it being hidden, so that the label hides by itself.
    m_popup->setAttribute(Qt::WA_DeleteOnClose, false);
    m_popup->close();
    QVERIFY(label->isHidden());
    QTRY_VERIFY(!label);
    QCOMPARE(m_chosen->count(), 0);
}

TREL_TEST(tst_CalendarPopup, QApplication)
#include "tst_CalendarPopup.moc"
