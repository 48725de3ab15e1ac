#include "desks/DeskNotice.h"

#include "DateWords.h"
#include "common/DisplayText.h"
#include "common/ListText.h"
#include "trelprogramschedule/desks/DeskWatch.h"
#include "trelwidgets/PlainToolTip.h"

#include <QEvent>
#include <QStringList>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// Of a desk, in columns of a terminal.
constexpr int kMostColumns = 40;
/// So many desks, and tasks of each, are told one by one.
constexpr std::size_t kMostTold = 12;

QString deskText(const DeskNote& note)
{
    return hosts::shortened(note.desk, kMostColumns);
}

QString tasksText(const DeskNote& note)
{
    QStringList ids;
    for (const int id : note.taskIds) {
        if (static_cast<std::size_t>(ids.size()) == kMostTold) {
            ids.append(QStringLiteral("…"));
            break;
        }
        ids.append(QString::number(id));
    }
    return hosts::ListText::joined(ids);
}

} // namespace

DeskNotice::DeskNotice(const DeskWatch& desks, QWidget* parent)
    : QLabel(parent)
    , m_desks(desks)
{
    setObjectName(QStringLiteral("deskNotice"));
    setTextFormat(Qt::PlainText);
    connect(&m_desks, &DeskWatch::changed, this, &DeskNotice::tell);
    tell();
}

void DeskNotice::tell()
{
    const std::vector<DeskNote>& others = m_desks.others();
    setVisible(!others.empty());
    if (others.empty()) {
        return;
    }
    setText(others.size() == 1
                ? tr("Also edited at %1 since %2", "a desk, and a time")
                      .arg(deskText(others.front()), momentText(others.front().since))
                : tr("Also edited at %n other desks", nullptr, static_cast<int>(others.size())));
    QStringList lines;
    for (std::size_t i = 0; i < std::min(others.size(), kMostTold); ++i) {
        lines.append(tr("%1: since %2, last changed at %3, tasks %4", "a desk, times, and numbers")
                         .arg(deskText(others[i]), momentText(others[i].since),
                              momentText(others[i].changed), tasksText(others[i])));
    }
    setToolTip(trel::widgets::plainToolTip(lines.join(QLatin1Char('\n'))));
    setAccessibleDescription(lines.join(QLatin1Char('\n')));
}

void DeskNotice::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        tell();
    }
}

} // namespace trel::desktop
