#include "screen/ProgramName.h"

#include "look/ProgramSigns.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace trel::desktop {

ProgramName::ProgramName(QWidget* parent)
    : ElidedText(parent)
    , m_colours(look::darkColours())
{}

ProgramName::~ProgramName() = default;

void ProgramName::setProgram(int progIndex)
{
    if (m_program != progIndex) {
        m_program = progIndex;
        leaveRoom();
        update();
    }
}

void ProgramName::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    update();
}

QRect ProgramName::sign() const
{
    if (m_program < 0) {
        return {};
    }
    const int top = contentsRect().top() + (fontMetrics().lineSpacing() - look::kProgramSign) / 2;
    return QStyle::visualRect(layoutDirection(), rect(),
                              QRect(0, top, look::kProgramSign, look::kProgramSign));
}

/// All lines of the text stand behind the sign.
void ProgramName::leaveRoom()
{
    const int room = m_program < 0 ? 0 : look::kProgramSign + look::kBesideProgramSign;
    const bool isFromLeft = layoutDirection() == Qt::LeftToRight;
    setContentsMargins(isFromLeft ? room : 0, 0, isFromLeft ? 0 : room, 0);
}

void ProgramName::changeEvent(QEvent* event)
{
    ElidedText::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        leaveRoom();
    }
}

void ProgramName::paintEvent(QPaintEvent* event)
{
    ElidedText::paintEvent(event);
    if (m_program >= 0) {
        QPainter painter(this);
        look::paintProgramSign(painter, sign(), m_program, m_colours);
    }
}

} // namespace trel::desktop
