#include "support/ActiveAccessibility.h"
#include "support/TestProgram.h"
#include "toolkit/FocusedWheel.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QSpinBox>
#include <QTimeEdit>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

/// What a screen reader is told while a value is typed.
class tst_TypedValue : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void aDateIsToldWhenItIsWhole();
    void aTimeIsToldWhenItIsWhole();
    void whatChangesNothingIsNotTold();
    void aStepIsToldOnce();
    void aFieldMayGoWithItsKey();
};

namespace {

QStringList s_told;

void hear(QAccessibleEvent* event)
{
    const auto* const field = qobject_cast<QAbstractSpinBox*>(event->object());
    if (field && event->type() == QAccessible::ValueChanged) {
        s_told.append(field->text());
    }
}

/// A field that has the focus, and somebody who listens.
template <typename Field>
class Heard
{
public:
    Heard()
        : m_former(QAccessible::installUpdateHandler(hear))
        , m_field(std::make_unique<FocusedWheel<Field>>())
    {}

    ~Heard() { QAccessible::installUpdateHandler(m_former); }
    Q_DISABLE_COPY(Heard)

    Field* operator->() const { return m_field.get(); }

    void show()
    {
        m_field->show();
        m_field->activateWindow();
        m_field->setFocus();
        QTRY_VERIFY(m_field->hasFocus());
        s_told.clear();
    }

    void type(const char* keys) { QTest::keyClicks(m_field.get(), QLatin1String(keys)); }
    void press(Qt::Key key) { QTest::keyClick(m_field.get(), key); }
    void destroy() { m_field.reset(); }

private:
    const ActiveAccessibility m_active;
    const QAccessible::UpdateHandler m_former;
    std::unique_ptr<Field> m_field;
};

} // namespace

void tst_TypedValue::cleanup()
{
    s_told.clear();
}

void tst_TypedValue::aDateIsToldWhenItIsWhole()
{
    Heard<QDateEdit> date;
    date->setDisplayFormat(QStringLiteral("yyyy.MM.dd"));
    date->setDate(QDate(2024, 3, 10));
    date.show();
    date->setSelectedSection(QDateTimeEdit::YearSection);
    date.type("20240430");
    // With the last digit of each part, and not with those before it.
    QCOMPARE(s_told.join(u'|'), QStringLiteral("2024.03.10|2024.04.10|2024.04.30"));
}

void tst_TypedValue::aTimeIsToldWhenItIsWhole()
{
    Heard<QTimeEdit> time;
    time->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    time->setTime(QTime(1, 0));
    time.show();
    time->setSelectedSection(QDateTimeEdit::HourSection);
    time.type("113000");
    QCOMPARE(s_told.join(u'|'), QStringLiteral("11:00:00|11:30:00|11:30:00"));
}

void tst_TypedValue::whatChangesNothingIsNotTold()
{
    Heard<QSpinBox> count;
    count->setRange(1, 99);
    count->setValue(1);
    count.show();
    count.press(Qt::Key_End);
    count.type("x");
    QCOMPARE(s_told, QStringList());
    count.type("2");
    QCOMPARE(s_told, QStringList(QStringLiteral("12")));
    // Nothing is no value.
    count.press(Qt::Key_Backspace);
    count.press(Qt::Key_Backspace);
    QCOMPARE(s_told.join(u'|'), QStringLiteral("12|1"));
}

// The toolkit tells of it.
void tst_TypedValue::aStepIsToldOnce()
{
    Heard<QSpinBox> count;
    count->setValue(5);
    count.show();
    count.press(Qt::Key_Up);
    QCOMPARE(s_told, QStringList(QStringLiteral("6")));
    count.press(Qt::Key_Down);
    QCOMPARE(s_told.join(u'|'), QStringLiteral("6|5"));
}

void tst_TypedValue::aFieldMayGoWithItsKey()
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_2, Qt::NoModifier, QStringLiteral("2"));
    Heard<QSpinBox> count;
    count.show();
    const TypedValue typed(*count.operator->(), key);
    count.destroy();
    typed.tell();
    QCOMPARE(s_told, QStringList());
}

TREL_TEST(tst_TypedValue, QApplication)
#include "tst_TypedValue.moc"
