#pragma once

#include "ThemeColours.h"

#include <QProxyStyle>

class QAbstractScrollArea;
class QStyleOptionHeader;
class QStyleOptionTab;

namespace trel::desktop::look {

/// The look of the editor and of the host: flat, in the colours of one theme at a time.
///
/// It knows the editor's hooks by themselves, without a style sheet. A sheet on the application, or
/// on a window, would make every row of a plan several times as dear to build. A host that sets one
/// nevertheless gets the colours of the sheet where it has any.
class EditorStyle : public QProxyStyle
{
    Q_OBJECT

public:
    explicit EditorStyle(const ThemeColours& colours);

    /// Takes other colours. Widgets that are polished already keep what they took from the old
    /// ones until recolour() is called for them.
    void setColours(const ThemeColours& colours);
    /// Gives a polished widget the colours that it would take now.
    void recolour(QWidget* widget) const;

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    using QProxyStyle::unpolish;
    void unpolish(QWidget* widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole) const override;
    void drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                        const QPixmap& pixmap) const override;

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl subControl, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;

private:
    void recolourLabel(QWidget* label) const;
    void recolourCalendarArrow(QWidget* button) const;
    QSize sizeWithInset(ContentsType type, const QStyleOption* option, const QSize& contents,
                        const QWidget* widget) const;
    QIcon panelSign(StandardPixmap icon) const;
    bool paintPanel(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void paintFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    bool paintLabelFrame(const QStyleOption& option, QPainter& painter,
                         const QWidget* widget) const;
    void paintItem(const QStyleOption* option, QPainter* painter, const QWidget* widget) const;
    void paintColumnTitle(const QStyleOptionHeader& option, QPainter* painter,
                          const QWidget* widget) const;
    void paintPanelTitle(const QStyleOption& option, QPainter* painter,
                         const QWidget* widget) const;
    void paintTabLabel(const QStyleOptionTab& tab, QPainter* painter, const QWidget* widget) const;

    ThemeColours m_colours;
};

} // namespace trel::desktop::look
