#include "Themes.h"

#include <QApplication>
#include <QFont>

namespace trel::desktop {

namespace {

const QLatin1String kDark("dark");
const QLatin1String kLight("light");
const QLatin1String kContrast("high-contrast");

look::ThemeColours coloursOf(const QString& name)
{
    if (name == kContrast) {
        return look::contrastColours();
    }
    return name == kLight ? look::lightColours() : look::darkColours();
}

/// The editor measures some texts in a font that not every machine has; what stands in for it has
/// to have the letters of every language that the editor speaks.
QStringList fontFamilies()
{
    return {QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC"),
            QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")};
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

/// Some are made sick by what moves of itself, and what a system says of that does not always reach
/// the toolkit, which has effects for menus, lists and tool tips beside those of the style.
void keepStill()
{
    QApplication::setEffectEnabled(Qt::UI_General, false);
}

} // namespace

Themes::Themes(QApplication& application)
    : m_style(new look::EditorStyle(coloursOf(kDark)))
    , m_current(kDark)
    , m_recolouring(*m_style)
{
    application.setStyle(m_style);
    setFont();
    keepStill();
    takeColours();
    m_recolouring.run();
}

QStringList Themes::names()
{
    return {kDark, kLight, kContrast};
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
    takeColours();
    m_recolouring.begin();
    emit changed();
}

void Themes::takeColours()
{
    const look::ThemeColours colours = this->colours();
    if (m_style) {
        m_style->setColours(colours);
    }
    QApplication::setPalette(look::windowPalette(colours));
}

} // namespace trel::desktop
