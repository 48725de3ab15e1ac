#include "WindowTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>

namespace {

/// What is left of a text that is no data and stands in no brackets.
QString outsideOfBrackets(QString text)
{
    static const QRegularExpression inBrackets(QStringLiteral("⟦[^⟦⟧]*⟧"));
    // Names of programs and files, addresses, patterns of files, keys, desks, and halves of a day.
    static const QRegularExpression data(
        QStringLiteral("program \\d+|\\w+…|\\S*/\\S*|\\S+\\.(db|json|sqlite)\\b|"
                       "\\b(F\\d+|[A-Z])\\b|\\S+@\\S+|\\b[AP]M\\b"));
    int before = -1;
    while (before != text.size()) {
        before = text.size();
        text.remove(inBrackets);
    }
    // A prompt without a window to lie over is called after the program.
    return text.remove(data).remove(QCoreApplication::applicationName());
}

/// Whether a widget stands in a cell of fixed size. Such texts have a list of their own, with the
/// room that each has.
bool isInCell(const QWidget& widget)
{
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (qobject_cast<const QAbstractItemView*>(parent) != nullptr) {
            return true;
        }
    }
    return false;
}

} // namespace

void WindowTexts::lookAt(const QWidget& window, const QString& name)
{
    m_name = name;
    m_widget.clear();
    expectTranslated(window.windowTitle());
    lookAtWidget(window);
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->isVisibleTo(&window)) {
            lookAtWidget(*widget);
        }
    }
}

void WindowTexts::lookAtWidget(const QWidget& widget)
{
    m_widget = widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                             : widget.objectName();
    expectTranslated(widget.toolTip());
    expectTranslated(widget.accessibleName());
    expectTranslated(widget.property("title").toString());
    // What was typed is data.
    if (qobject_cast<const QLineEdit*>(&widget) == nullptr) {
        expectTranslated(widget.property("text").toString());
    }
    expectTranslated(widget.property("placeholderText").toString());
    if (const auto* box = qobject_cast<const QComboBox*>(&widget);
        box != nullptr && box->objectName() != QLatin1String("lookInCombo")) {
        for (int i = 0; i < box->count(); ++i) {
            expectTranslated(box->itemText(i));
        }
    }
    // What a file dialog lists are files.
    const bool listsFiles = widget.window()->inherits("QFileDialog");
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
        !listsFiles && view != nullptr && view->model() != nullptr) {
        const QAbstractItemModel& model = *view->model();
        for (int row = 0; row < qMin(model.rowCount(), 20); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                expectTranslated(model.index(row, column).data().toString());
            }
        }
    }
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget);
        header != nullptr && header->model() != nullptr) {
        for (int i = 0; i < header->count(); ++i) {
            expectTranslated(header->model()->headerData(i, header->orientation()).toString());
        }
    }
    const QList<QAction*> actions = widget.actions();
    for (const QAction* action : actions) {
        // Languages are called by their own names.
        if (action->data().toString().size() != 5) {
            expectTranslated(action->text());
        }
    }
    expectWhole(widget);
}

bool WindowTexts::hasUntranslated(const QString& text)
{
    static const QRegularExpression letter(QStringLiteral("\\p{L}"));
    return outsideOfBrackets(text).contains(letter);
}

void WindowTexts::expectTranslated(const QString& text)
{
    m_count += text.isEmpty() ? 0 : 1;
    if (hasUntranslated(text)) {
        m_untranslated.append(QStringLiteral("%1, %2: %3").arg(m_name, m_widget, text));
    }
}

void WindowTexts::expectWhole(const QWidget& widget)
{
    const QString text = widget.property("text").toString();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool isMeasured = label != nullptr ||
                            qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                            qobject_cast<const QMenuBar*>(&widget) != nullptr;
    // A label that is drawn with an ellipsis gives all of its text when it is pointed at.
    const bool isElided = widget.inherits("trel::desktop::ElidedText") ||
                          widget.inherits("trel::widgets::ElidedLabel");
    // A sign or an image is placed by hand.
    const bool isWritten = text.contains(QChar(0x27e6)) || qobject_cast<const QMenuBar*>(&widget);
    if (!isMeasured || !isWritten || isElided || isInCell(widget)) {
        return;
    }
    const bool isCut = label != nullptr && label->wordWrap()
                           ? label->heightForWidth(widget.width()) > widget.height()
                           : widget.sizeHint().width() > widget.width();
    if (isCut) {
        m_cut.append(QStringLiteral("%1, %2: %3 needs %4 px of %5")
                         .arg(m_name, m_widget, text)
                         .arg(widget.sizeHint().width())
                         .arg(widget.width()));
    }
}
