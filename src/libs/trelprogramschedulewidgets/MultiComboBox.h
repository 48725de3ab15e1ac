#pragma once

#include <QComboBox>
#include <QFont>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QTime>
#include <QVector>

#include <vector>

class QAccessibleInterface;

namespace trel::mediadispatch {

class BoolCheckDelegate;

/// A combo box whose list holds check marks, so that several entries can be chosen at once. The
/// first entry and the others exclude each other, as an entry for everything needs it.
///
/// The box shows the chosen labels joined with the separator, cut to fit; its tool tip shows them
/// all. The text is what is kept: the marks follow it when the list opens, and it follows the marks
/// when the list closes. Clicks in the open list change marks and nothing else. The mark of an
/// entry is its data under Qt::CheckStateRole, a bool.
///
/// New labels, such as those of another language, change neither the text nor what it stands for:
/// opening the list marks the same entries, and closing it shows and emits their new labels.
class MultiComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit MultiComboBox(QWidget* parent = nullptr);

    /// What stands between two labels; "," at the start. It must occur in no label.
    void setSeparator(const QString& separator);

    /// Keeps the word for a choice of everything. The box shows it nowhere of its own accord: the
    /// label of the first entry does that.
    void setEveryDayText(const QString& text);
    const QString& everyDayText() const { return m_everyDayText; }

    /// Shows a text, labels joined with the separator, and leaves the marks as they are. The text
    /// stands for the entries that have these labels now, also when they are given others later.
    void setShownText(const QString& text);
    /// The text that is shown, uncut.
    const QString& shownText() const { return m_currentText; }

    /// Marks the entries whose labels stand in the text last shown, and no others. An entry that
    /// has been given another label since is known by the one that it had. A label that no entry
    /// has or had is passed over.
    void restoreCheckMarks();

    /// Shows a text, marks its labels, and settles for them as a closing list does, with the
    /// signal.
    void applySelection(const QString& text);

    /// Shows what the marks stand for, and writes it to the debug log. Emits nothing and leaves the
    /// current index alone.
    void updateBox();

    /// Changes the mark of an entry, from 0, as a click on it in the open list does. Nothing while
    /// the list is closed, or where there is no such entry.
    void toggleEntry(int entry);

    void showPopup() override;
    void hidePopup() override;

signals:
    /// The list has closed on these labels, in the order of the entries; also when nothing changed.
    void signalSelectedText(const QStringList& labels);

protected:
    void childEvent(QChildEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// An entry that the shown text stands for, with the label that it had when it was shown.
    struct ShownEntry
    {
        QPersistentModelIndex entry;
        QString label;
    };

    QPointF placeOnArrow() const;
    QModelIndex entryIndex(int entry) const;
    void showText(const QString& text);
    void rememberShownEntries();
    /// Takes the labels of entries that are still there out of words and returns those entries.
    QVector<int> takeShownEntries(QStringList& words) const;
    bool isChecked(int entry) const;
    void setChecked(int entry, bool checked);
    void toggle(const QModelIndex& entry);
    /// Whether they are checked, by entry.
    QVector<bool> marks() const;
    /// What a screen reader takes for an entry; null while there is none that listens.
    QAccessibleInterface* spokenEntry(int entry) const;
    /// Tells it that an entry is checked now, or not.
    void tellMark(int entry) const;
    /// Tells it which entry of the open list is current.
    void tellCurrent() const;
    void excludeOthers(int toggledEntry);
    QStringList checkedLabels() const;
    void showLabels(const QStringList& labels);
    void keepShownText();
    bool isPopupOpen() const;
    void watchList(const QEvent& event);
    void prepareList();
    void fitPopupToLabels();
    void goToEntry();
    void commit();

    QString m_separator;
    QString m_defaultText; // Shown when nothing is chosen.
    QString m_pendingText; // The text when the list last opened.
    QString m_currentText; // The text last shown, uncut.
    QTime m_lastHideTime;
    QString m_everyDayText;
    QString m_cutText;
    QFont m_cutFont; // The one that the text was cut for.
    QPointer<QObject> m_popup;
    QPointer<BoolCheckDelegate> m_delegate;
    std::vector<ShownEntry> m_shownEntries;
};

} // namespace trel::mediadispatch
