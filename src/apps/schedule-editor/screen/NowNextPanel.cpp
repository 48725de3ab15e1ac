#include "screen/NowNextPanel.h"

#include "DateWords.h"
#include "effect/CutInLine.h"
#include "effect/EffectLines.h"
#include "screen/Badge.h"
#include "screen/ComingPrograms.h"
#include "screen/ElidedText.h"
#include "screen/PlayBar.h"
#include "screen/ProgramName.h"
#include "screen/ScreenFollower.h"
#include "screen/ScreenWords.h"
#include "trelwidgets/PlainToolTip.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr qint64 kDay = 86'400'000;
constexpr int kProgramPixels = 16;
constexpr int kReasonLines = 2;
/// More than any reason takes at the usual width of the panel.
constexpr int kMostReasonLines = 5;
/// All of it fits onto a screen of 768 lines.
constexpr int kSpace = 2;
/// A plan with its times is longer than the panel is wide in most languages.
constexpr int kPlanLines = 2;

/// A label that one reads past while the others are read.
template <typename Label>
Label* faint(Label* label)
{
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

template <typename Label>
Label* named(Label* label, const char* name)
{
    label->setObjectName(QLatin1String(name));
    return label;
}

/// For texts of whatever kind: none of them is taken for markup.
QLabel* plainLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void setBold(QWidget* widget, int pixels)
{
    QFont font = widget->font();
    font.setBold(true);
    if (pixels > 0) {
        font.setPixelSize(pixels);
    }
    widget->setFont(font);
}

/// The program that the words for the screen name; -1 for none.
int namedProgram(const ScreenState& state)
{
    return state.picture == ScreenPicture::Black ? -1 : state.progIndex;
}

/// A text without its room where there is none.
void setOptional(QLabel* label, const QString& text)
{
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

QHBoxLayout* row(std::initializer_list<QWidget*> leading, std::initializer_list<QWidget*> trailing)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (QWidget* widget : leading) {
        row->addWidget(widget);
    }
    row->addStretch(1);
    for (QWidget* widget : trailing) {
        row->addWidget(widget);
    }
    return row;
}

} // namespace

NowNextPanel::NowNextPanel(ScreenFollower& follower, QWidget* parent)
    : QWidget(parent)
    , m_follower(follower)
    , m_nowTitle(named(faint(plainLabel(this)), "nowTitle"))
    , m_picture(named(new Badge(this), "nowPicture"))
    , m_inserted(named(new Badge(this), "nowInserted"))
    , m_program(named(new ProgramName(this), "nowProgram"))
    , m_bar(named(new PlayBar(this), "nowBar"))
    , m_gone(named(plainLabel(this), "nowGone"))
    , m_toCome(named(plainLabel(this), "nowToCome"))
    , m_entry(named(new ElidedText(this), "nowEntry"))
    , m_plan(named(new ElidedText(this, kPlanLines), "nowPlan"))
    , m_reason(named(faint(new ElidedText(this, kReasonLines)), "nowReason"))
    , m_nextPart(new QWidget(this))
    , m_nextTitle(named(faint(plainLabel(m_nextPart)), "nextTitle"))
    , m_nextInserted(named(new Badge(m_nextPart), "nextInserted"))
    , m_nextProgram(named(new ProgramName(m_nextPart), "nextProgram"))
    , m_nextPlan(named(new ElidedText(m_nextPart, kPlanLines), "nextPlan"))
    , m_nextTime(named(new ElidedText(m_nextPart), "nextTime"))
    , m_coming(new ComingPrograms(follower, this))
    , m_cutIn(named(new CutInLine(follower, this), "nowCutIn"))
    , m_effect(named(new EffectLines(follower, this), "effectLines"))
{
    setObjectName(QStringLiteral("nowNextPanel"));
    build();
    retranslate();
    m_inserted->installEventFilter(this);
    m_nextInserted->installEventFilter(this);
    m_follower.addViewer(*this);
    const auto show = [this] {
        showScreen();
        showNext();
    };
    connect(&m_follower, &ScreenFollower::changed, this, show);
    connect(&m_follower, &ScreenFollower::ticked, this, &NowNextPanel::showTimes);
}

void NowNextPanel::build()
{
    setBold(m_program, kProgramPixels);
    setBold(m_nextProgram, 0);
    m_reason->setMostLines(kMostReasonLines);
    m_inserted->setRoles(QPalette::Button, QPalette::ButtonText);
    m_nextInserted->setRoles(QPalette::Button, QPalette::ButtonText);

    auto* line = new QFrame(m_nextPart);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);

    auto* next = new QVBoxLayout(m_nextPart);
    next->setContentsMargins(0, kSpace, 0, 0);
    next->setSpacing(kSpace);
    next->addWidget(line);
    next->addLayout(row({m_nextTitle}, {m_nextInserted}));
    next->addWidget(m_nextProgram);
    next->addWidget(m_nextPlan);
    next->addWidget(m_nextTime);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->setSpacing(kSpace);
    layout->addLayout(row({m_nowTitle}, {m_inserted, m_picture}));
    layout->addWidget(m_program);
    layout->addWidget(m_bar);
    layout->addLayout(row({m_gone}, {m_toCome}));
    layout->addWidget(m_entry);
    layout->addWidget(m_plan);
    layout->addWidget(m_reason);
    layout->addWidget(m_cutIn);
    layout->addWidget(m_nextPart);
    layout->addWidget(m_coming);
    layout->addStretch(1);
    layout->addWidget(m_effect);
}

void NowNextPanel::setColours(const look::ThemeColours& colours)
{
    m_program->setColours(colours);
    m_nextProgram->setColours(colours);
    m_coming->setColours(colours);
}

void NowNextPanel::retranslate()
{
    m_nowTitle->setText(tr("Now"));
    m_inserted->setText(tr("Cut in"));
    m_nextTitle->setText(tr("Next"));
    m_nextInserted->setText(tr("Cut in"));
    setAccessibleName(tr("Now and next"));
    // What a label shows is its name; what it is about comes behind it.
    m_picture->setAccessibleDescription(tr("What the screen shows"));
    m_program->setAccessibleDescription(tr("Program on screen"));
    m_bar->setAccessibleName(tr("Position in the program"));
    m_reason->setAccessibleDescription(tr("Why this is on screen"));
    m_nextProgram->setAccessibleDescription(tr("Next program"));
    showScreen();
    showNext();
}

void NowNextPanel::showScreen()
{
    const ScreenScene& now = m_follower.now();
    const bool isRunning = m_follower.isRunning();
    const bool isPlaying = now.state.isPlaying();
    m_picture->setText(ScreenWords::picture(now.state.picture));
    m_picture->setRoles(isPlaying ? QPalette::Highlight : QPalette::Button,
                        isPlaying ? QPalette::HighlightedText : QPalette::ButtonText);
    m_picture->setVisible(isRunning);
    m_inserted->setVisible(now.state.isInserted());
    m_program->setText(isRunning ? ScreenWords::program(now) : tr("Not started"));
    m_program->setProgram(isRunning ? namedProgram(now.state) : -1);
    m_reason->setText(ScreenWords::reason(now.state, &now.plan));
    setOptional(m_entry, ScreenWords::entry(now));
    m_bar->setVisible(isPlaying);
    m_gone->setVisible(isPlaying);
    m_toCome->setVisible(isPlaying);
    showTimes();
}

void NowNextPanel::showTimes()
{
    const ScreenScene& now = m_follower.now();
    const qint64 gone = m_follower.position();
    const std::optional<qint64> toCome = m_follower.remaining();
    m_gone->setText(ScreenWords::gone(gone));
    m_gone->setAccessibleName(tr("%1 played").arg(m_gone->text()));
    m_toCome->setText(toCome ? QStringLiteral("−%1").arg(ScreenWords::toCome(*toCome)) : QString());
    m_toCome->setAccessibleName(toCome ? tr("%1 left").arg(ScreenWords::toCome(*toCome))
                                       : QString());
    m_bar->setPlay(gone, toCome ? gone + *toCome : 0);

    const std::optional<qint64> planToCome = m_follower.planRemaining();
    const bool hasPlan = now.state.reason != ScreenReason::PlanEnded;
    const QString plan = ScreenWords::plan(now);
    setOptional(m_plan, plan.isEmpty() || !planToCome || !hasPlan
                            ? plan
                            : tr("%1, until %2, %3 left")
                                  .arg(plan, m_follower.timeText(now.state.spanUntil),
                                       ScreenWords::toCome(*planToCome)));
    showNextTime();
}

void NowNextPanel::showNext()
{
    m_nextPart->setVisible(m_follower.isRunning());
    const std::optional<ScreenScene>& next = m_follower.next();
    m_nextInserted->setVisible(next && next->state.isInserted());
    m_nextProgram->setText(next ? ScreenWords::program(*next) : tr("Nothing else is scheduled."));
    m_nextProgram->setProgram(next ? namedProgram(next->state) : -1);
    QStringList parts;
    if (next) {
        parts = QStringList{ScreenWords::plan(*next), ScreenWords::entry(*next)};
        parts.removeAll(QString());
    }
    setOptional(m_nextPlan, parts.join(QStringLiteral(" · ")));
    showNextTime();
}

void NowNextPanel::showNextTime()
{
    const Instant until = m_follower.now().state.until;
    const std::optional<qint64> toCome = m_follower.remaining();
    if (!m_follower.next() || !toCome) {
        setOptional(m_nextTime, QString());
        return;
    }
    const QString date = dateText(m_follower.local(until).date());
    const QString time = m_follower.timeText(until);
    m_nextTime->setVisible(true);
    m_nextTime->setText(*toCome < kDay ? tr("at %1, in %2").arg(time, ScreenWords::toCome(*toCome))
                                       : tr("on %1 at %2").arg(date, time));
}

QString NowNextPanel::insertionText(const QObject* badge) const
{
    const ScreenState& now = m_follower.now().state;
    // An insertion has the screen before the play ends that it shows now, if it has it at all.
    const std::optional<ScreenInsertion> insertion =
        m_follower.insertionAt(badge == m_inserted ? now.since : now.until);
    return insertion ? ScreenWords::insertion(insertion->plan.programs, insertion->original)
                     : QString();
}

bool NowNextPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        // Asked for late: the list that stood there before is handed in after the insertion.
        qobject_cast<QWidget*>(watched)->setToolTip(
            trel::widgets::plainToolTip(insertionText(watched)));
    }
    return QWidget::eventFilter(watched, event);
}

bool NowNextPanel::event(QEvent* event)
{
    if (event->type() == QEvent::Show) {
        // No tick of the clock came while the panel was hidden.
        showTimes();
    }
    return QWidget::event(event);
}

void NowNextPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace trel::desktop
