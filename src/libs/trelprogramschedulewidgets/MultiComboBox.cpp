#include "MultiComboBox.h"

#include "card/BoolCheckDelegate.h"
#include "clock/Clock.h"
#include "toolkit/CutLine.h"
#include "trelwidgets/PlainToolTip.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QCoreApplication>
#include <QDebug>
#include <QFontMetrics>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QWheelEvent>

namespace trel::mediadispatch {

namespace {

// The entry that stands for everything and excludes all others.
constexpr int kEverythingEntry = 0;

constexpr int kTextWidth = 93;
constexpr int kReopenDelayMs = 100;

// A point on the arrow, in from the edge at its side and down from the top.
constexpr int kArrowInset = 10;

/// The line of a box, which takes no typing. What it has no room for it cuts, with dots.
class DayLine : public QLineEdit
{
public:
    explicit DayLine(QComboBox* box)
        : QLineEdit(box)
        , m_box(*box)
    {}

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (isCut(*this)) {
            paintCut(*this, m_box);
        } else {
            QLineEdit::paintEvent(event);
        }
    }

private:
    const QComboBox& m_box;
};

/// Makes a line the one that a box shows, and thereby the box editable. setEditable() would build
/// the list as well, which is most of the box, and most boxes of a long schedule are never opened.
///
/// To a line without a completer the toolkit gives one of its own, with a model over the entries. A
/// line that takes no typing never asks it, so one that is empty stands in for it meanwhile.
void setLine(QComboBox& box, QLineEdit* line)
{
    static QPointer<QCompleter> standIn;
    if (!standIn) {
        standIn = new QCompleter(QCoreApplication::instance());
    }
    line->setCompleter(standIn);
    box.setLineEdit(line);
    line->setCompleter(nullptr);
}

} // namespace

MultiComboBox::MultiComboBox(QWidget* parent)
    : QComboBox(parent)
    , m_separator(QLatin1Char(','))
    , m_lastHideTime(Clock::current().timeOfDay())
{
    auto* const line = new DayLine(this);
    line->setPalette(palette());
    setLine(*this, line);
    setInsertPolicy(QComboBox::NoInsert);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    line->setReadOnly(true);
    line->setCursorPosition(0);

    // The toolkit puts the label of the current entry into the line whenever that entry changes or
    // the keyboard moves on to another one. The line shows the chosen labels, whatever is current.
    connect(model(), &QAbstractItemModel::dataChanged, this, &MultiComboBox::keepShownText);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &MultiComboBox::keepShownText);
}

void MultiComboBox::setSeparator(const QString& separator)
{
    m_separator = separator;
}

void MultiComboBox::setEveryDayText(const QString& text)
{
    m_everyDayText = text;
}

void MultiComboBox::setShownText(const QString& text)
{
    showText(text);
    rememberShownEntries();
}

void MultiComboBox::showText(const QString& text)
{
    // Measuring is what is dear here, and a list that opens shows the same text again.
    if (text != m_currentText || font() != m_cutFont) {
        m_currentText = text;
        m_cutFont = font();
        m_cutText = QFontMetrics(m_cutFont).elidedText(text, Qt::ElideRight, kTextWidth);
    }
    keepShownText();
    if (lineEdit()) {
        lineEdit()->setCursorPosition(0);
    }
    if (const QString tip = widgets::plainToolTip(text); toolTip() != tip) {
        setToolTip(tip);
    }
}

void MultiComboBox::restoreCheckMarks()
{
    m_pendingText = m_currentText;
    QStringList words = m_currentText.split(m_separator);
    const QVector<int> shown = takeShownEntries(words);
    for (int i = 0; i < count(); ++i) {
        setChecked(i, shown.contains(i) || words.contains(itemText(i)));
    }
    showText(m_pendingText);
}

void MultiComboBox::applySelection(const QString& text)
{
    setShownText(text);
    restoreCheckMarks();
    commit();
}

void MultiComboBox::updateBox()
{
    const QStringList labels = checkedLabels();
    qDebug() << "#############################:" << labels;
    showLabels(labels);
}

void MultiComboBox::showPopup()
{
    // The click that closes the list reaches the box as well and must not open it again. Times of
    // one day are compared: over midnight one click is lost.
    if (m_lastHideTime.msecsTo(Clock::current().timeOfDay()) < kReopenDelayMs) {
        return;
    }
    restoreCheckMarks();
    prepareList();
    fitPopupToLabels();
    goToEntry();
    QComboBox::showPopup();
    tellCurrent();
}

void MultiComboBox::hidePopup()
{
    m_lastHideTime = Clock::current().timeOfDay();
    commit();
    QComboBox::hidePopup();
}

void MultiComboBox::childEvent(QChildEvent* event)
{
    QComboBox::childEvent(event);
    // The one window is what holds the list. It is no more than begun, and tells when it gets it.
    const bool isWindow = event->added() && event->child()->isWidgetType() &&
                          static_cast<QWidget*>(event->child())->isWindow();
    if (isWindow && !m_popup) {
        m_popup = event->child();
        m_popup->installEventFilter(this);
    }
}

bool MultiComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_popup) {
        watchList(*event);
        return QComboBox::eventFilter(watched, event);
    }
    if (event->type() != QEvent::MouseButtonRelease) {
        return QObject::eventFilter(watched, event);
    }
    toggle(view()->indexAt(static_cast<QMouseEvent*>(event)->pos()));
    // The release may reach no other object: it would choose the entry and close the list.
    return true;
}

void MultiComboBox::mousePressEvent(QMouseEvent* event)
{
    // An editable box opens on its arrow only, and here the text is as good a place.
    if (lineEdit() && lineEdit()->geometry().contains(event->pos())) {
        event->setLocalPos(placeOnArrow());
    }
    QComboBox::mousePressEvent(event);
}

QPointF MultiComboBox::placeOnArrow() const
{
    const QPoint usual =
        QStyle::visualPos(layoutDirection(), rect(), QPoint(width() - kArrowInset, kArrowInset));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QStyle::SubControl hit =
        style()->hitTestComplexControl(QStyle::CC_ComboBox, &option, usual, this);
    if (hit == QStyle::SC_ComboBoxArrow) {
        return usual;
    }
    // A style sheet may have put it elsewhere.
    return style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this)
        .center();
}

void MultiComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void MultiComboBox::hideEvent(QHideEvent* event)
{
    // The toolkit closes the list of a box that goes out of sight, open or not. Without an open
    // list there is nothing to settle, and folding a card must not look like an edit of its rows.
    if (isPopupOpen()) {
        QComboBox::hideEvent(event);
    }
}

void MultiComboBox::changeEvent(QEvent* event)
{
    // As above, for a box that is disabled.
    if (event->type() == QEvent::EnabledChange && !isPopupOpen()) {
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): the class between closes the list.
        QWidget::changeEvent(event);
        return;
    }
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        showText(m_currentText);
    }
}

QModelIndex MultiComboBox::entryIndex(int entry) const
{
    return model()->index(entry, modelColumn(), rootModelIndex());
}

void MultiComboBox::rememberShownEntries()
{
    m_shownEntries.clear();
    const QStringList words = m_currentText.split(m_separator);
    for (int i = 0; i < count(); ++i) {
        const QString label = itemText(i);
        if (words.contains(label)) {
            m_shownEntries.push_back({entryIndex(i), label});
        }
    }
}

QVector<int> MultiComboBox::takeShownEntries(QStringList& words) const
{
    QVector<int> entries;
    QStringList labels;
    for (const ShownEntry& shown : m_shownEntries) {
        const bool isHere = shown.entry.isValid() && shown.entry.model() == model();
        if (isHere && words.contains(shown.label)) {
            entries.append(shown.entry.row());
            labels.append(shown.label);
        }
    }
    for (const QString& label : labels) {
        words.removeAll(label);
    }
    return entries;
}

bool MultiComboBox::isChecked(int entry) const
{
    return itemData(entry, Qt::CheckStateRole).toBool();
}

void MultiComboBox::setChecked(int entry, bool checked)
{
    setItemData(entry, checked, Qt::CheckStateRole);
}

void MultiComboBox::toggle(const QModelIndex& entry)
{
    const QVector<bool> before = marks();
    excludeOthers(entry.row());
    view()->model()->setData(entry, !entry.data(Qt::CheckStateRole).toBool(), Qt::CheckStateRole);
    showText(m_pendingText);
    // One entry may have taken the marks of the others.
    for (int i = 0; i < before.size(); ++i) {
        if (isChecked(i) != before.at(i)) {
            tellMark(i);
        }
    }
}

QVector<bool> MultiComboBox::marks() const
{
    QVector<bool> all;
    for (int i = 0; i < count(); ++i) {
        all.append(isChecked(i));
    }
    return all;
}

QAccessibleInterface* MultiComboBox::spokenEntry(int entry) const
{
    QAccessibleInterface* const list =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(view()) : nullptr;
    return list ? list->child(entry) : nullptr;
}

void MultiComboBox::tellMark(int entry) const
{
    if (QAccessibleInterface* const marked = spokenEntry(entry)) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(marked, changed);
        QAccessible::updateAccessibility(&event);
    }
}

// The toolkit tells of the list when it opens, and of no entry in it.
void MultiComboBox::tellCurrent() const
{
    QAccessibleInterface* const current =
        isPopupOpen() ? spokenEntry(view()->currentIndex().row()) : nullptr;
    if (current) {
        QAccessibleEvent event(current, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void MultiComboBox::toggleEntry(int entry)
{
    if (isPopupOpen() && entryIndex(entry).isValid()) {
        toggle(entryIndex(entry));
    }
}

void MultiComboBox::excludeOthers(int toggledEntry)
{
    if (toggledEntry != kEverythingEntry) {
        if (isChecked(kEverythingEntry)) {
            setChecked(kEverythingEntry, false);
        }
        return;
    }
    for (int i = kEverythingEntry + 1; i < count(); ++i) {
        if (isChecked(i)) {
            setChecked(i, false);
        }
    }
}

QStringList MultiComboBox::checkedLabels() const
{
    QStringList labels;
    for (int i = 0; i < count(); ++i) {
        if (isChecked(i)) {
            labels.append(itemText(i));
        }
    }
    return labels;
}

void MultiComboBox::showLabels(const QStringList& labels)
{
    setShownText(labels.isEmpty() ? m_defaultText : labels.join(m_separator));
}

void MultiComboBox::keepShownText()
{
    if (lineEdit() && lineEdit()->text() != m_cutText) {
        lineEdit()->setText(m_cutText);
        lineEdit()->setCursorPosition(0);
    }
}

bool MultiComboBox::isPopupOpen() const
{
    const auto* const popup = qobject_cast<const QWidget*>(m_popup);
    return popup && popup->isVisible();
}

void MultiComboBox::watchList(const QEvent& event)
{
    if (event.type() != QEvent::ChildAdded) {
        return;
    }
    const auto& added = static_cast<const QChildEvent&>(event);
    if (const auto* const list = qobject_cast<QAbstractItemView*>(added.child())) {
        list->viewport()->installEventFilter(this);
    }
}

void MultiComboBox::prepareList()
{
    if (!m_delegate) {
        m_delegate = new BoolCheckDelegate(this);
        connect(m_delegate, &BoolCheckDelegate::toggleRequested, this, &MultiComboBox::toggle);
    }
    // Another style brings a delegate of its own, and the event filter installed last is asked
    // first.
    if (itemDelegate() != m_delegate) {
        setItemDelegate(m_delegate);
    }
    view()->viewport()->installEventFilter(this);
}

void MultiComboBox::fitPopupToLabels()
{
    const int scrollBarWidth = view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(view()->sizeHintForColumn(modelColumn()) + scrollBarWidth);
}

// The toolkit makes the entry the current one while the list is not there yet, and tells a screen
// reader of it.
void MultiComboBox::goToEntry()
{
    const QModelIndex entry = entryIndex(currentIndex());
    if (entry.isValid()) {
        const QSignalBlocker quiet(view()->selectionModel());
        view()->selectionModel()->setCurrentIndex(entry, QItemSelectionModel::ClearAndSelect);
    }
}

void MultiComboBox::commit()
{
    QStringList labels;
    for (int i = 0; i < count(); ++i) {
        if (isChecked(i)) {
            labels.append(itemText(i));
            setCurrentIndex(i);
        }
    }
    showLabels(labels);
    emit signalSelectedText(labels);
}

} // namespace trel::mediadispatch
