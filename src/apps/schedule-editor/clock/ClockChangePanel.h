#pragma once

#include <QListWidget>

namespace trel::mediadispatch {
enum class ClockChangeEffect;
struct TaskClockChange;
struct TouchedPlan;
} // namespace trel::mediadispatch

/// The next hours that a change of the clocks leaves out or doubles on days of a task, each with
/// what becomes of the plans that it touches. Follows the working set, so that the operator learns
/// of it before saving; works it out only while it can be seen, once for all edits of one turn of
/// the event loop.
class ClockChangePanel : public QListWidget
{
    Q_OBJECT

public:
    explicit ClockChangePanel(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void follow();
    void reload();
    void addSentence(const QString& sentence, bool isFaint);
    void addChange(const trel::mediadispatch::TaskClockChange& change);
    /// The sentence for an effect, with places for the change (%1 to %3), the plan and its task
    /// (%4, %5), and where the effect has a time of day, for that (%6).
    static QString wordsFor(trel::mediadispatch::ClockChangeEffect effect);
    static QString effect(const QString& words, const trel::mediadispatch::TaskClockChange& change,
                          const trel::mediadispatch::TouchedPlan& plan);
};
