#include "support/ChooserAnswer.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QtTest>

namespace {

void fail(const char* words)
{
    QTest::qFail(words, __FILE__, __LINE__);
}

} // namespace

ChooserAnswer::ChooserAnswer()
{
    qApp->installEventFilter(this);
}

ChooserAnswer::ChooserAnswer(Steps steps)
    : ChooserAnswer()
{
    expect(std::move(steps));
}

ChooserAnswer::~ChooserAnswer()
{
    if (!m_steps.empty()) {
        fail("an expected chooser did not open");
    }
}

void ChooserAnswer::expect(Steps steps)
{
    m_steps.push_back(std::move(steps));
}

bool ChooserAnswer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->objectName() == QLatin1String("ProgramChoose")) {
        auto* chooser = qobject_cast<QDialog*>(watched);
        // Its event loop is not running yet.
        QTimer::singleShot(0, chooser, [this, chooser] { answer(chooser); });
    }
    return QObject::eventFilter(watched, event);
}

void ChooserAnswer::answer(QDialog* chooser)
{
    ++m_count;
    const QPointer<QWidget> frame = chooser->window();
    if (m_steps.empty()) {
        fail("a chooser that nobody expected");
        frame->close();
        return;
    }
    const Steps steps = std::move(m_steps.front());
    m_steps.pop_front();
    ChooserWindow window(chooser);
    steps(window);
    if (frame && frame->isVisible()) {
        if (!QTest::currentTestFailed()) {
            fail("the chooser is still open after its steps");
        }
        frame->close();
    }
}
