#include "SpeechRecord.h"

#include <QApplication>
#include <QFile>
#include <QWidget>

#include <map>

namespace {

SpeechRecord* s_current = nullptr;

QString roleWord(QAccessible::Role role)
{
    static const std::map<QAccessible::Role, const char*> words{
        {QAccessible::Button, "button"},
        {QAccessible::CheckBox, "check box"},
        {QAccessible::ComboBox, "combo box"},
        {QAccessible::SpinBox, "spin button"},
        {QAccessible::Table, "table"},
        {QAccessible::List, "list"},
        {QAccessible::ListItem, "list item"},
        {QAccessible::StaticText, "label"},
        {QAccessible::Dialog, "dialog"},
        {QAccessible::Window, "window"},
        {QAccessible::ScrollBar, "scroll bar"},
        {QAccessible::EditableText, "text"},
        {QAccessible::ColumnHeader, "heading"},
        {QAccessible::Row, "row"},
        {QAccessible::Cell, "cell"},
        {QAccessible::Pane, "pane"},
        {QAccessible::LayeredPane, "pane"},
        {QAccessible::Client, "pane"},
        {QAccessible::Grouping, "group"},
    };
    const auto found = words.find(role);
    return found == words.end() ? QStringLiteral("role %1").arg(int(role))
                                : QString::fromLatin1(found->second);
}

QStringList stateWords(const QAccessible::State& state)
{
    QStringList words;
    if (state.checkable) {
        words << (state.checked ? QStringLiteral("checked") : QStringLiteral("not checked"));
    }
    if (state.expandable) {
        words << (state.expanded ? QStringLiteral("expanded") : QStringLiteral("collapsed"));
    }
    if (state.disabled) {
        words << QStringLiteral("unavailable");
    }
    if (state.invisible) {
        words << QStringLiteral("not shown");
    }
    return words;
}

bool isChange(QAccessible::Event type)
{
    return type == QAccessible::StateChanged || type == QAccessible::ValueChanged ||
           type == QAccessible::TextInserted || type == QAccessible::TextRemoved ||
           type == QAccessible::TextUpdated || type == QAccessible::NameChanged;
}

} // namespace

SpeechRecord::SpeechRecord(const QString& title)
    : m_former(QAccessible::installUpdateHandler(hear))
{
    s_current = this;
    m_lines.append(QStringLiteral("== ") + title);
}

SpeechRecord::~SpeechRecord()
{
    s_current = nullptr;
    QAccessible::installUpdateHandler(m_former);
    QFile file(qEnvironmentVariable("TREL_SPEECH_RECORD"));
    if (!file.fileName().isEmpty() && file.open(QIODevice::Append | QIODevice::Text)) {
        file.write(m_lines.join(QLatin1Char('\n')).toUtf8() + "\n\n");
    }
}

void SpeechRecord::doing(const QString& what)
{
    m_lines.append(QStringLiteral("> ") + what);
    m_read = m_lines.size();
}

QStringList SpeechRecord::news()
{
    const QStringList all = m_lines.mid(m_read);
    m_read = m_lines.size();
    return all;
}

QString SpeechRecord::said(const QAccessibleInterface& what)
{
    QStringList words{what.text(QAccessible::Name), roleWord(what.role()),
                      what.text(QAccessible::Value)};
    words << stateWords(what.state());
    words.removeAll(QString());
    const QString more = what.text(QAccessible::Description);
    return words.join(QStringLiteral(", ")) +
           (more.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(more));
}

void SpeechRecord::hear(QAccessibleEvent* event)
{
    if (s_current) {
        s_current->take(*event);
    }
}

void SpeechRecord::take(const QAccessibleEvent& event)
{
    const QAccessibleInterface* const what = event.accessibleInterface();
    if (!what || !what->isValid()) {
        return;
    }
    const bool isFocus = event.type() == QAccessible::Focus;
    const bool isOfFocus = event.uniqueId() == m_focus;
    if (isFocus) {
        sayWindow();
        m_focus = event.uniqueId();
        m_focused = said(*what);
        say(m_focused);
    } else if (event.type() == QAccessible::Alert) {
        say(QStringLiteral("! ") + said(*what));
    } else if (event.type() == QAccessible::ObjectShow &&
               what->role() == QAccessible::Notification) {
        say(QStringLiteral("* ") + what->text(QAccessible::Name));
    } else if (isChange(event.type()) && isOfFocus && said(*what) != m_focused) {
        m_focused = said(*what);
        say(m_focused);
    }
}

/// The window that has come up since.
void SpeechRecord::sayWindow()
{
    QWidget* const active = QApplication::activeWindow();
    const QAccessibleInterface* const said =
        active && active != m_window ? QAccessible::queryAccessibleInterface(active) : nullptr;
    m_window = active;
    if (said) {
        say(SpeechRecord::said(*said));
    }
}

void SpeechRecord::say(const QString& line)
{
    if (m_lines.last() != QStringLiteral("  ") + line) {
        m_lines.append(QStringLiteral("  ") + line);
    }
}
