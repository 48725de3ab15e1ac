#include "week/BlockPainting.h"

#include "BidiText.h"
#include "common/ListText.h"
#include "look/ProgramColours.h"
#include "look/ThemeColours.h"
#include "week/WeekScene.h"
#include "week/WeekWords.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>

namespace trel::desktop {

using trel::mediadispatch::PlanFault;

namespace week {

namespace {

constexpr int kLineWidth = 3;
constexpr int kCollisionWidth = 6;
constexpr int kTextSpace = 4;
constexpr double kRadius = 2.5;
constexpr int kSign = 7; ///< Before the name of a program that the ground does not tell.
constexpr int kLeastForSign = 48;
/// Lower pieces are a bar of one colour.
constexpr int kLeastForm = 6;
/// With more lines than these each program has one of its own.
constexpr int kTitleLines = 2;

const QLatin1String kGap("  ");

/// What is drawn of a piece, by its state.
struct Look
{
    QColor ground;
    QColor pattern;
    QColor edge;
    QColor text;
    Qt::PenStyle frame = Qt::NoPen;
};

Look lookOf(const look::ThemeColours& colours, const DayPiece& piece, const WeekBlock* block)
{
    if (piece.state == DayPiece::LeftOut) {
        return {QColor(), QColor(), colours.weekClockText, colours.weekClockText, Qt::DashLine};
    }
    if (piece.state != DayPiece::OnScreen) {
        return {colours.weekHidden, colours.weekHiddenPattern, colours.weekHiddenText,
                colours.weekHiddenText, Qt::DotLine};
    }
    if (block != nullptr && block->hasNothing) {
        return {colours.weekBlack, QColor(), colours.weekBlockLine, colours.weekBlackText,
                Qt::SolidLine};
    }
    const bool hasProgram = block != nullptr && !block->programIndexes.empty();
    const look::ProgramColours program =
        look::programColours(hasProgram ? block->programIndexes.front() : -1, colours);
    return {program.ground, QColor(), program.line, program.text, Qt::NoPen};
}

/// The names, each of which runs in a direction of its own.
QStringList namesOf(const WeekBlock& block)
{
    QStringList names;
    for (const QString& program : block.programs) {
        names.append(isolated(program));
    }
    return names;
}

/// The lines of text for a height of so many: with three and more the second is the first program.
QStringList linesOf(const DayPiece& piece, const WeekBlock* block, int lines,
                    const QFontMetrics& metrics, int width)
{
    if (block == nullptr) {
        return {QStringLiteral("+%1").arg(piece.count)};
    }
    const QStringList programs = namesOf(*block);
    const QString names =
        block->hasNothing ? Words::tr("nothing to show") : hosts::ListText::joined(programs);
    if (lines < 2) {
        const QString whole = QString::number(block->planId) + kGap + names;
        // A part of a name still tells the program; of other words it tells nothing.
        const bool isTold = !block->hasNothing || metrics.horizontalAdvance(whole) <= width;
        return {isTold ? whole : QString::number(block->planId)};
    }
    QStringList texts{blockTitle(*block, metrics, width)};
    if (lines <= kTitleLines || block->hasNothing) {
        texts.append(names);
        return texts;
    }
    const int room = lines - 1;
    const bool isCut = programs.size() > room || block->hasMorePrograms;
    texts += programs.mid(0, isCut ? room - 1 : room);
    if (isCut) {
        texts.append(QStringLiteral("…"));
    }
    return texts;
}

/// In a list of several, each program has its colour before its name. Returns the room that is left
/// for the name.
QRect paintSign(QPainter& painter, const WeekScene& scene, const QRect& room, const Look& look,
                const WeekBlock& block, int program)
{
    const bool isProgram = program < static_cast<int>(block.programIndexes.size());
    if (block.programIndexes.size() < 2 || block.hasNothing || !isProgram ||
        room.width() < kLeastForSign) {
        return room;
    }
    const int index = block.programIndexes[static_cast<std::size_t>(program)];
    const QRect sign(room.left(), room.top() + (painter.fontMetrics().height() - kSign) / 2, kSign,
                     kSign);
    const QRect seen = QStyle::visualRect(scene.geometry.direction(), room, sign);
    painter.fillRect(seen, look::programColours(index, scene.colours).line);
    painter.setPen(look.text);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(seen.adjusted(0, 0, -1, -1));
    const QRect rest = room.adjusted(kSign + kTextSpace, 0, 0, 0);
    return QStyle::visualRect(scene.geometry.direction(), room, rest);
}

void paintTexts(QPainter& painter, const WeekScene& scene, const QRect& rect, const Look& look,
                const DayPiece& piece, const WeekBlock* block)
{
    const int lineHeight = painter.fontMetrics().height();
    QRect place = rect;
    place.setTop(std::max(rect.top() + 1, scene.visible.top()));
    place.setBottom(std::min(rect.bottom(), scene.visible.bottom() + lineHeight));
    const int lines = place.height() / lineHeight;
    if (lines < 1) {
        return;
    }
    const QColor plate = look.pattern.isValid() ? look.ground : QColor();
    const QStringList texts = linesOf(piece, block, lines, painter.fontMetrics(), place.width());
    for (int line = 0; line < texts.size(); ++line) {
        QRect room = place;
        if (lines > kTitleLines && line > 0) {
            room = paintSign(painter, scene, room, look, *block, line - 1);
        }
        drawLabel(painter, room, texts[line], look.text, plate);
        place.setTop(place.top() + lineHeight);
    }
}

void paintGround(QPainter& painter, const QRect& rect, const Look& look)
{
    if (rect.height() < kLeastForm) {
        painter.fillRect(rect, look.frame == Qt::NoPen ? look.edge : look.ground);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    const QRectF shape = crisp(painter, rect);
    if (look.ground.isValid()) {
        painter.setBrush(look.ground);
        painter.drawRoundedRect(shape, kRadius, kRadius);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (look.pattern.isValid()) {
        painter.setBrushOrigin(rect.topLeft());
        painter.fillRect(rect.adjusted(1, 1, -1, -1), QBrush(look.pattern, Qt::BDiagPattern));
        painter.setBrushOrigin(0, 0);
    }
    if (look.frame != Qt::NoPen) {
        QPen pen(look.edge, 1, look.frame);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
}

/// The edge at which the text begins: thin, and for a collision broad and of another colour, with
/// teeth so that the colour alone does not have to tell.
void paintEdge(QPainter& painter, const WeekScene& scene, const QRect& rect, const Look& look,
               bool collides)
{
    const int width = collides ? kCollisionWidth : kLineWidth;
    const QRect edge = QStyle::visualRect(scene.geometry.direction(), rect,
                                          QRect(rect.left(), rect.top(), width, rect.height()));
    painter.fillRect(edge, collides ? scene.colours.weekCollision : look.edge);
    if (collides) {
        const int first = std::max(edge.top(), scene.visible.top() / 8 * 8 - 8) + 4;
        const int last = std::min(edge.bottom() - 3, scene.visible.bottom() + 8);
        for (int y = first; y <= last; y += 8) {
            painter.fillRect(QRect(edge.left() + 2, y, width - 4, 2),
                             look.ground.isValid() ? look.ground : scene.colours.weekGround);
        }
    }
}

void paintPiece(QPainter& painter, const WeekScene& scene, int day, const DayPiece& piece)
{
    const WeekColumn& column = scene.layout.days[static_cast<std::size_t>(day)];
    const WeekBlock* block =
        piece.claim < 0 ? nullptr : &column.blocks[static_cast<std::size_t>(piece.claim)];
    const Look look = lookOf(scene.colours, piece, block);
    QRect rect = scene.geometry.piece(day, piece);
    // Plans that follow one another keep a little apart, as long as there is something to see.
    if (rect.height() > 3) {
        rect.setHeight(rect.height() - 1);
    }
    paintGround(painter, rect, look);
    const bool collides = block != nullptr && block->collides;
    if (piece.state != DayPiece::LeftOut && block != nullptr) {
        paintEdge(painter, scene, rect, look, collides);
    }
    const int space = kTextSpace + (collides ? kCollisionWidth : kLineWidth);
    const QRect texts = QStyle::visualRect(
        scene.geometry.direction(), rect,
        QRect(rect.left() + space, rect.top(), rect.width() - space - 2, rect.height()));
    paintTexts(painter, scene, texts, look, piece, block);
}

bool standsFor(const WeekColumn& column, const DayPiece& piece, const WeekBlock& block)
{
    return piece.claim >= 0 && &column.blocks[static_cast<std::size_t>(piece.claim)] == &block;
}

void paintSelection(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed)
{
    const WeekColumn& column = scene.layout.days[static_cast<std::size_t>(day)];
    if (!scene.selected || scene.selected->date != column.date) {
        return;
    }
    const WeekBlock* block = column.blockOf(scene.selected->row);
    if (block == nullptr || block->never != PlanFault::None) {
        return;
    }
    const QColor colour = scene.hasFocus ? scene.colours.text : scene.colours.faintText;
    painter.setBrush(Qt::NoBrush);
    const auto frame = [&](const QRect& rect) {
        painter.setPen(QPen(colour, 2));
        painter.drawRect(rect.adjusted(1, 1, -1, -1));
    };
    bool isFound = false;
    for (const std::vector<DayPiece>& lane : column.lanes) {
        for (const DayPiece& piece :
             scene.geometry.piecesBetween(lane, exposed.top(), exposed.bottom())) {
            if (standsFor(column, piece, *block)) {
                frame(scene.geometry.piece(day, piece));
                isFound = true;
            }
        }
    }
    // One of several without a lane of its own shows by its whole time.
    const QRect whole = scene.geometry.span(day, block->from, block->to);
    if (!isFound && whole.intersects(exposed)) {
        frame(whole);
    }
}

} // namespace

QString blockTitle(const WeekBlock& block, const QFontMetrics& metrics, int width)
{
    const QString number = QString::number(block.planId);
    const QString begin = shortTime(block.from);
    QString whole = number + kGap + leftToRight(begin + QChar(0x2013) + shortTime(block.to));
    if (metrics.horizontalAdvance(whole) <= width) {
        return whole;
    }
    const QString half = number + kGap + begin;
    return metrics.horizontalAdvance(half) <= width ? half : number;
}

void paintBlocks(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed)
{
    for (const std::vector<DayPiece>& lane :
         scene.layout.days[static_cast<std::size_t>(day)].lanes) {
        for (const DayPiece& piece :
             scene.geometry.piecesBetween(lane, exposed.top(), exposed.bottom())) {
            paintPiece(painter, scene, day, piece);
        }
    }
    paintSelection(painter, scene, day, exposed);
}

void paintMarks(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed)
{
    const WeekColumn& column = scene.layout.days[static_cast<std::size_t>(day)];
    for (const WeekBlock& block : column.blocks) {
        const QRect rect = scene.geometry.mark(day, block.from);
        if (block.never == PlanFault::None || !rect.intersects(exposed)) {
            continue;
        }
        const bool isSelected =
            scene.selected && *scene.selected == BlockRef{column.date, block.row};
        const QRectF shape = crisp(painter, rect);
        QPainterPath sign(shape.topLeft());
        sign.lineTo(shape.topRight());
        sign.lineTo(shape.center().x(), shape.bottom());
        sign.closeSubpath();
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(isSelected ? QPen(scene.colours.text, 1.5)
                                  : QPen(scene.colours.weekGround, 1));
        painter.setBrush(scene.colours.weekCollision);
        painter.drawPath(sign);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
}

} // namespace week

} // namespace trel::desktop
