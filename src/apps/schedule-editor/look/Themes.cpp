#include "Themes.h"

#include <QApplication>
#include <QFont>
#include <QToolTip>
#include <QWidget>

namespace {

const QLatin1String kDark("dark");
const QLatin1String kLight("light");

look::ThemeColours coloursOf(const QString& name)
{
    return name == kLight ? look::lightColours() : look::darkColours();
}

/// The editor measures some texts in a font that not every machine has; what stands in for it has
/// to have the letters of every language that the editor speaks.
QStringList fontFamilies()
{
    return {QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC"),
            QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")};
}

/// The toolkit passes a new palette over the widgets below a style sheet, such as the list of the
/// cards has. What a widget has set for itself it keeps.
void takePalette(QWidget* widget)
{
    widget->setPalette(widget->testAttribute(Qt::WA_SetPalette) ? widget->palette() : QPalette());
    const QObjectList children = widget->children();
    for (QObject* child : children) {
        auto* inner = qobject_cast<QWidget*>(child);
        if (inner != nullptr && !inner->isWindow()) {
            takePalette(inner);
        }
    }
}

void setFont()
{
    const QStringList families = fontFamilies();
    QFont::insertSubstitutions(families.first(), families.mid(1));
    QFont font;
    font.setFamilies(families);
    // The columns of the editor's tables are fixed in pixels, and so is the size of the text.
    font.setPixelSize(12);
    QApplication::setFont(font);
}

} // namespace

Themes::Themes(QApplication& application)
    : m_style(new look::EditorStyle(coloursOf(kDark)))
    , m_current(kDark)
{
    application.setStyle(m_style);
    setFont();
    apply();
}

QStringList Themes::names()
{
    return {kDark, kLight};
}

look::ThemeColours Themes::colours() const
{
    return coloursOf(m_current);
}

void Themes::select(const QString& name)
{
    const QString known = names().contains(name) ? name : QString(kDark);
    if (known == m_current) {
        return;
    }
    m_current = known;
    apply();
    emit changed();
}

void Themes::apply()
{
    const look::ThemeColours colours = this->colours();
    if (m_style) {
        m_style->setColours(colours);
    }
    const QPalette palette = look::windowPalette(colours);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        takePalette(window);
    }
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (m_style && widget->testAttribute(Qt::WA_WState_Polished)) {
            m_style->polish(widget);
        }
        widget->update();
    }
}
