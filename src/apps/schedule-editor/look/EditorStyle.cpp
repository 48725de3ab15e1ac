#include "EditorStyle.h"

#include "BoxPainting.h"
#include "ButtonPainting.h"
#include "EdgePainting.h"
#include "FieldPainting.h"
#include "FrameDistance.h"
#include "SliderPainting.h"
#include "StyleHooks.h"
#include "ThemeImages.h"
#include "ViewPainting.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCalendarWidget>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

namespace trel::desktop::look {

namespace {

/// How far the table of a card stays away from the edges of the card, so that their lines are seen.
constexpr int kTableInset = 1;
constexpr int kHintPixels = 15;
constexpr int kBesideText = 10; ///< In the buttons of dialogs.
constexpr int kListHeaderMargin = 7;
constexpr int kListTextDrop = 1;
constexpr int kCatalogueMargin = 6; ///< Beside the texts of the host's table.
constexpr qreal kCardRadius = 5.0;
constexpr qreal kStateRadius = 4.0;
constexpr int kStateHeight = 24;
constexpr int kStateGap = 2; ///< Between a state and the box before it.
constexpr int kTabFocusInset = 4;
constexpr int kTotalGap = 3; ///< Between the total of a chooser and its caption.

/// Asks the table once more for the margins of its place; when it was made it had no name yet.
void updateTableMargins(QWidget* table)
{
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(table, &change);
}

/// Checked with Qt 5.15.8: a panel sets the font of its title up by a comparison that overlooks the
/// families, so that after a change of language it writes with the former ones.
QFont titleFont(const QPainter& painter, const QWidget* panel)
{
    if (panel == nullptr) {
        return painter.font();
    }
    QFont font = painter.font();
    font.setFamilies(panel->font().families());
    return font;
}

/// The bar lies in a container of its own.
bool isBarOfPlanTable(const QWidget* bar)
{
    const QWidget* container = bar != nullptr ? bar->parentWidget() : nullptr;
    return container != nullptr && isPlanTable(container->parentWidget());
}

void polishArea(QAbstractScrollArea& area)
{
    if (isPlanTable(&area)) {
        updateTableMargins(&area);
    } else if (isWell(&area)) {
        // The frame paints the ground under the cards.
        area.viewport()->setAutoFillBackground(false);
    }
}

void polishLabel(QWidget& label)
{
    if (styleOf(&label) == QLatin1String("grayHint")) {
        QFont font = label.font();
        font.setPixelSize(kHintPixels);
        label.setFont(font);
    } else if (isNamed(&label, "showTime_label")) {
        label.setContentsMargins(kTotalGap, 0, kTotalGap, 0);
    }
}

/// The toolkit writes the weekend in a red that is hard to read on most grounds.
void polishCalendar(QCalendarWidget& calendar)
{
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
        calendar.setWeekdayTextFormat(day, QTextCharFormat());
    }
}

void setTextColour(QWidget* label, const QColor& colour)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
}

/// A button of a dialog that is as wide as its text. Those in the bars of panels have no room to
/// spare.
bool isAnswer(const QWidget* widget)
{
    const auto* button = qobject_cast<const QPushButton*>(widget);
    return button != nullptr && !button->text().isEmpty() &&
           button->minimumWidth() != button->maximumWidth() &&
           qobject_cast<const QDialog*>(button->window()) != nullptr;
}

/// The mark of a choice as it is asked for, but where the letters beside it are. A font leaves more
/// room above them than below, so that they stand lower than the middle of their line. The base
/// style does not ask a proxy for the place.
QStyleOption levelWithText(const QStyleOption& option, const QWidget* widget)
{
    QStyleOption mark(option);
    const auto* choice = qobject_cast<const QAbstractButton*>(widget);
    if (choice == nullptr || choice->text().isEmpty()) {
        return mark;
    }
    const QFontMetrics& font = option.fontMetrics;
    const double line = (choice->height() - font.height()) / 2.0;
    // Between the middle of the high letters and that of the low ones.
    const double letters = line + font.ascent() - (font.capHeight() + font.xHeight()) / 4.0;
    const int drop = qRound(letters - (mark.rect.center().y() + 0.5));
    mark.rect.translate(0, qBound(0, drop, choice->height() - 1 - mark.rect.bottom()));
    return mark;
}

constexpr char kFormerMonth[] = "qt_calendar_prevmonth";
constexpr char kNextMonth[] = "qt_calendar_nextmonth";

bool isCalendarArrow(const QWidget* widget)
{
    return qobject_cast<const QToolButton*>(widget) != nullptr &&
           (isNamed(widget, kFormerMonth) || isNamed(widget, kNextMonth));
}

constexpr char kFloatSign[] = "qt_dockwidget_floatbutton";
constexpr char kCloseSign[] = "qt_dockwidget_closebutton";
/// As wide as the toolkit's own, so that the titles of panels keep their height.
constexpr int kPanelSign = 10;

bool isPanelSign(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) != nullptr &&
           (isNamed(widget, kFloatSign) || isNamed(widget, kCloseSign));
}

/// The ground of a plan's state, on which its word stands in the middle.
QRect stateGround(const QWidget& label)
{
    QRect ground = label.rect().adjusted(kStateGap, 0, 0, 0);
    ground.setHeight(kStateHeight);
    ground.moveTop((label.height() - kStateHeight) / 2);
    return QStyle::visualRect(label.layoutDirection(), label.rect(), ground);
}

/// A line of choices takes no typing. It would cut them off in the middle of a letter, so it shows
/// nothing itself, and the style paints what has room.
void hideOwnText(QWidget& line)
{
    QPalette palette = line.palette();
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::Highlight, QPalette::HighlightedText}) {
        palette.setColor(role, Qt::transparent);
    }
    line.setPalette(palette);
}

bool hidesOwnText(const QWidget* widget)
{
    return isLineOfChoices(widget) && widget->palette().color(QPalette::Text).alpha() == 0;
}

/// A line between two groups of a menu, without a title for the second one.
bool isPlainSeparator(const QStyleOption& option)
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    return item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator &&
           item->text.isEmpty();
}

/// The widget that a painter was opened on, if it is one.
const QWidget* paintedWidget(const QPainter& painter)
{
    return painter.device() != nullptr && painter.device()->devType() == QInternal::Widget
               ? static_cast<const QWidget*>(painter.device())
               : nullptr;
}

} // namespace

EditorStyle::EditorStyle(const ThemeColours& colours)
    : QProxyStyle(QStringLiteral("Fusion"))
    , m_colours(colours)
{}

void EditorStyle::setColours(const ThemeColours& colours)
{
    m_colours = colours;
}

void EditorStyle::recolour(QWidget* widget) const
{
    // Asked of every widget of every row, and so by class first.
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(widget)) {
        if (isChooserList(area)) {
            widget->setPalette(listPalette(m_colours));
        }
    } else if (qobject_cast<const QLabel*>(widget) != nullptr) {
        recolourLabel(widget);
    } else if (isLineOfChoices(widget)) {
        hideOwnText(*widget);
    } else if (isCalendarArrow(widget)) {
        recolourCalendarArrow(widget);
    } else if (isPanelSign(widget)) {
        static_cast<QAbstractButton*>(widget)->setIcon(panelSign(
            isNamed(widget, kFloatSign) ? SP_TitleBarNormalButton : SP_TitleBarCloseButton));
    }
}

/// The toolkit has small bitmaps for these, which are blurred on fine screens.
QIcon EditorStyle::panelSign(StandardPixmap icon) const
{
    return imageIcon(icon == SP_TitleBarNormalButton ? QStringLiteral("panel-float")
                                                     : QStringLiteral("panel-close"),
                     m_colours.icon);
}

void EditorStyle::recolourLabel(QWidget* label) const
{
    const QString style = styleOf(label);
    if (style == QLatin1String("errorHint")) {
        setTextColour(label, m_colours.errorText);
    } else if (style == QLatin1String("grayHint")) {
        setTextColour(label, m_colours.faintText);
    }
}

/// It lies on the bar of the calendar, which has the ground of a selection.
void EditorStyle::recolourCalendarArrow(QWidget* button) const
{
    const bool leadsBack = isNamed(button, kFormerMonth);
    const bool pointsLeft = leadsBack == (button->layoutDirection() == Qt::LeftToRight);
    static_cast<QToolButton*>(button)->setIcon(imageIcon(
        pointsLeft ? QStringLiteral("previous") : QStringLiteral("next"), m_colours.accentText));
}

void EditorStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    recolour(widget);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
        polishArea(*area);
    } else if (qobject_cast<QLabel*>(widget) != nullptr) {
        polishLabel(*widget);
    } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
        // Nothing but the thumb is painted, and what lies below shows.
        bar->setAttribute(Qt::WA_OpaquePaintEvent, false);
    } else if (qobject_cast<QFrame*>(widget) != nullptr && isProgramField(widget)) {
        widget->setAttribute(Qt::WA_Hover);
    } else if (auto* calendar = qobject_cast<QCalendarWidget*>(widget)) {
        polishCalendar(*calendar);
    }
}

void EditorStyle::unpolish(QWidget* widget)
{
    if (hidesOwnText(widget)) {
        widget->setPalette(QPalette());
    }
    QProxyStyle::unpolish(widget);
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_Widget:
        if (paintPanel(*option, *painter, widget)) {
            return;
        }
        break;
    case PE_Frame:
        paintFrame(*option, *painter, widget);
        return;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
        // The line of a spin box or a combo box lies on a ground that is painted already.
        if (!isInsideField(widget)) {
            paintField(*painter, m_colours, *option);
        } else if (hidesOwnText(widget)) {
            paintChoices(*painter, m_colours, *option,
                         static_cast<const QLineEdit*>(widget)->text());
        }
        return;
    case PE_PanelButtonCommand:
        paintButton(*painter, m_colours, *option, widget);
        return;
    case PE_FrameFocusRect:
        paintFocus(*painter, m_colours, *option);
        return;
    case PE_PanelItemViewRow:
    case PE_PanelItemViewItem:
        paintRow(*painter, m_colours, *option, widget);
        return;
    case PE_IndicatorCheckBox:
        paintCheckMark(*painter, m_colours, levelWithText(*option, widget));
        return;
    case PE_IndicatorItemViewItemCheck:
        paintCheckMark(*painter, m_colours, *option);
        return;
    case PE_IndicatorRadioButton:
        paintRadioMark(*painter, m_colours, levelWithText(*option, widget));
        return;
    case PE_FrameMenu:
        paintMenuFrame(*painter, m_colours, option->rect);
        return;
    case PE_FrameTabWidget:
        paintTabPane(*painter, m_colours, option->rect);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void EditorStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case CE_PushButtonBevel:
        paintButton(*painter, m_colours, *option, widget);
        return;
    case CE_PushButtonLabel:
        if (paintButtonLabel(*painter, m_colours, *option, widget)) {
            return;
        }
        break;
    case CE_ComboBoxLabel:
        if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
            const QRect room =
                proxy()->subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget);
            paintComboBoxLabel(*painter, m_colours, *box, room);
            return;
        }
        break;
    case CE_ProgressBar:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
            paintProgressBar(*painter, m_colours, *bar);
            return;
        }
        break;
    case CE_ShapedFrame:
        if (paintLabelFrame(*option, *painter, widget)) {
            return;
        }
        break;
    case CE_HeaderSection:
        paintHeaderSection(*painter, *option);
        return;
    case CE_HeaderEmptyArea:
        painter->fillRect(option->rect, option->palette.color(QPalette::Button));
        return;
    case CE_ItemViewItem:
        paintItem(option, painter, widget);
        return;
    case CE_DockWidgetTitle:
        paintPanelTitle(*option, painter, widget);
        return;
    case CE_HeaderLabel:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
            paintColumnTitle(*header, painter, widget);
            return;
        }
        break;
    case CE_MenuItem:
        if (isPlainSeparator(*option)) {
            paintMenuSeparator(*painter, m_colours, option->rect);
            return;
        }
        break;
    case CE_TabBarTabShape:
        QProxyStyle::drawControl(element, option, painter, widget);
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
            tab != nullptr && (tab->state & State_Selected) != 0) {
            paintTabInFront(*painter, m_colours, *tab);
        }
        return;
    case CE_TabBarTabLabel:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
            paintTabLabel(*tab, painter, widget);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

/// The base style writes titles at the left wherever one begins to read.
void EditorStyle::paintColumnTitle(const QStyleOptionHeader& option, QPainter* painter,
                                   const QWidget* widget) const
{
    QStyleOptionHeader title(option);
    title.rect = withInset(title.rect, titleInset(*proxy(), title, widget), title.direction);
    painter->save();
    if (isTitleOfHost(widget)) {
        painter->setLayoutDirection(title.direction);
    }
    QProxyStyle::drawControl(CE_HeaderLabel, &title, painter, widget);
    painter->restore();
}

void EditorStyle::paintPanelTitle(const QStyleOption& option, QPainter* painter,
                                  const QWidget* widget) const
{
    const auto* dock = qstyleoption_cast<const QStyleOptionDockWidget*>(&option);
    if (dock == nullptr) {
        return;
    }
    QStyleOptionDockWidget title(*dock);
    if (!title.verticalTitleBar) {
        const QRect text = QProxyStyle::subElementRect(SE_DockWidgetTitleBarText, dock, widget);
        const int own = title.direction == Qt::LeftToRight ? text.left() - title.rect.left()
                                                           : title.rect.right() - text.right();
        title.rect = withInset(title.rect, qMax(0, kFrameDistance - own), title.direction);
    }
    painter->save();
    painter->setFont(titleFont(*painter, widget));
    painter->setLayoutDirection(title.direction);
    QProxyStyle::drawControl(CE_DockWidgetTitle, &title, painter, widget);
    painter->restore();
}

// The base style shows a tab's focus only to those who have just pressed Tab.
void EditorStyle::paintTabLabel(const QStyleOptionTab& tab, QPainter* painter,
                                const QWidget* widget) const
{
    QStyleOptionTab label = tab;
    label.state &= ~State_HasFocus;
    QProxyStyle::drawControl(CE_TabBarTabLabel, &label, painter, widget);
    if ((tab.state & State_HasFocus) != 0) {
        label.rect.adjust(kTabFocusInset, kTabFocusInset, -kTabFocusInset, -kTabFocusInset);
        paintFocus(*painter, m_colours, label);
    }
}

void EditorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const
{
    if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) {
        const QRect up = proxy()->subControlRect(control, option, SC_SpinBoxUp, widget);
        const QRect down = proxy()->subControlRect(control, option, SC_SpinBoxDown, widget);
        paintSpinBox(*painter, m_colours, *spin, up, down);
        return;
    }
    if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        const QRect arrow = proxy()->subControlRect(control, option, SC_ComboBoxArrow, widget);
        paintComboBox(*painter, m_colours, *box, arrow);
        return;
    }
    if (control == CC_ScrollBar) {
        const QRect thumb = proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget);
        paintScrollBar(*painter, m_colours, *option, thumb, isBarOfPlanTable(widget));
        return;
    }
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        slider != nullptr && control == CC_Slider) {
        paintSlider(*painter, m_colours, *slider,
                    proxy()->subControlRect(control, option, SC_SliderGroove, widget),
                    proxy()->subControlRect(control, option, SC_SliderHandle, widget));
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void EditorStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                               const QPalette& palette, bool enabled, const QString& text,
                               QPalette::ColorRole textRole) const
{
    QRect place = rect;
    const QWidget* painted = paintedWidget(*painter);
    if (isStateLabel(painted)) {
        place = stateGround(*painted);
        flags = static_cast<int>(Qt::AlignCenter) | Qt::TextSingleLine;
    } else if (painted != nullptr && isChooserHeader(painted->parentWidget())) {
        // Level with the mark in the first section and with the lines between the sections.
        place.setBottom(painted->rect().bottom());
    }
    // The base adds a line of the background's colour under disabled texts.
    painter->save();
    if (textRole != QPalette::NoRole) {
        painter->setPen(
            palette.color(enabled ? palette.currentColorGroup() : QPalette::Disabled, textRole));
    }
    if (painted != nullptr && isStateLabel(painted)) {
        painter->setPen(isOfCollision(*painted) ? m_colours.stateCollision : m_colours.stateFree);
    }
    painter->drawText(place, flags, text);
    painter->restore();
}

void EditorStyle::drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                                 const QPixmap& pixmap) const
{
    // At a ratio of 1.5 the images for 2 are shrunk.
    const QPainter::RenderHints hints = painter->renderHints();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
    painter->setRenderHints(painter->renderHints(), false);
    painter->setRenderHints(hints);
}

QRect EditorStyle::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const
{
    if (element == SE_FrameLayoutItem && isPlanTable(widget)) {
        return option->rect.adjusted(-kTableInset, 0, kTableInset, 0);
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect EditorStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl subControl, const QWidget* widget) const
{
    QRect rect;
    if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) {
        rect = spinBoxPart(*spin, subControl);
    } else if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        rect = comboBoxPart(*box, subControl);
    } else if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
               bar != nullptr && control == CC_ScrollBar) {
        rect = scrollBarPart(*bar, subControl);
    } else {
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
    return visualRect(option->direction, option->rect, rect);
}

QSize EditorStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const
{
    if (type == CT_ItemViewItem || type == CT_HeaderSection) {
        return sizeWithInset(type, option, contents, widget);
    }
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton && isAnswer(widget)
               ? size.expandedTo({contents.width() + 2 * kBesideText, 0})
               : size;
}

/// What has less room for its text may take more lines.
QSize EditorStyle::sizeWithInset(ContentsType type, const QStyleOption* option,
                                 const QSize& contents, const QWidget* widget) const
{
    if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
        const int inset = cellInset(*proxy(), *item, widget);
        QStyleOptionViewItem cell(*item);
        if (cell.rect.width() > inset) {
            cell.rect = withInset(cell.rect, inset, cell.direction);
        }
        return QProxyStyle::sizeFromContents(type, &cell, contents, widget) + QSize(inset, 0);
    }
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* title = qstyleoption_cast<const QStyleOptionHeader*>(option);
    return title == nullptr ? size : size + QSize(titleInset(*proxy(), *title, widget), 0);
}

int EditorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        return isPlanTable(widget) || isInsideProgramField(widget) ? 0 : 1;
    case PM_SpinBoxFrameWidth:
    case PM_ComboBoxFrameWidth:
    case PM_MenuPanelWidth:
        return 1;
    case PM_ScrollBarExtent:
        return kScrollBarExtent;
    case PM_SmallIconSize:
        return isPanelSign(widget) ? kPanelSign : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ScrollBarSliderMin:
        return kScrollBarLeastThumb;
    case PM_ScrollView_ScrollBarOverlap:
        // The last column of a card's table needs the whole width, and its buttons show beside
        // the thumb.
        return isBarOfPlanTable(widget) ? kScrollBarExtent : 0;
    case PM_FocusFrameHMargin:
        // The captions of a card's table have narrow columns.
        if (isPlanTable(widget)) {
            return 0;
        }
        return isCatalogue(widget) ? kCatalogueMargin
                                   : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_HeaderMargin:
        if (isChooserHeader(widget)) {
            return kListHeaderMargin;
        }
        return widget != nullptr && isCatalogue(widget->parentWidget())
                   ? kCatalogueMargin + 1
                   : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
        // With the toolkit's margins the cards would be wider than what they lie in. On one
        // side the scroll bar takes the place of a margin.
        if (isCardList(widget)) {
            const bool isRightToLeft = widget->layoutDirection() == Qt::RightToLeft;
            const bool isBesideBar = (metric == PM_LayoutRightMargin) != isRightToLeft;
            return isBesideBar ? 0 : kScrollBarExtent;
        }
        return QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int EditorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_ComboBox_Popup: // The list opens below the box and does not cover it.
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_UnderlineShortcut:
    // Nothing moves of itself: what a system says of motion does not always reach the toolkit.
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
        return 0;
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    case SH_DialogButtonLayout: // As in editor and prompts: what is meant ends the row.
        return QDialogButtonBox::GnomeLayout;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QIcon EditorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxQuestion:
        return imageIcon(QStringLiteral("question"), m_colours.accentLine);
    case SP_MessageBoxWarning:
        return imageIcon(QStringLiteral("notice"), m_colours.icon);
    case SP_MessageBoxCritical:
        return imageIcon(QStringLiteral("error"), m_colours.stateCollision);
    case SP_MessageBoxInformation:
        return imageIcon(QStringLiteral("information"), m_colours.accentLine);
    case SP_TitleBarNormalButton:
    case SP_TitleBarCloseButton:
        if (qobject_cast<const QDockWidget*>(widget) != nullptr) {
            return panelSign(icon);
        }
        return QProxyStyle::standardIcon(icon, option, widget);
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

/// The grounds that widgets ask for without painting anything themselves.
bool EditorStyle::paintPanel(const QStyleOption& option, QPainter& painter,
                             const QWidget* widget) const
{
    const QString style = styleOf(widget);
    if (style == QLatin1String("BG1")) {
        paintBox(painter, option.rect, m_colours.card, m_colours.cardLine, kCardRadius);
    } else if (style == QLatin1String("BG3")) {
        paintProgramField(painter, m_colours, option);
    } else if (style == QLatin1String("BG4")) {
        painter.fillRect(option.rect, m_colours.header);
    } else {
        return false;
    }
    return true;
}

void EditorStyle::paintFrame(const QStyleOption& option, QPainter& painter,
                             const QWidget* widget) const
{
    if (isInsideProgramField(widget)) {
        return;
    }
    const bool hasFocus = (option.state & State_HasFocus) != 0;
    const bool isOpenList = widget != nullptr && widget->windowType() == Qt::Popup;
    const QColor& line = isChooserList(widget) ? m_colours.listLine
                         : isOpenList          ? m_colours.fieldLine
                                               : m_colours.cardLine;
    paintBox(painter, option.rect, isWell(widget) ? m_colours.well : QColor(Qt::transparent),
             hasFocus ? m_colours.focus : line, 0);
}

bool EditorStyle::paintLabelFrame(const QStyleOption& option, QPainter& painter,
                                  const QWidget* widget) const
{
    if (isStateLabel(widget)) {
        paintBox(painter, stateGround(*widget), m_colours.state, m_colours.stateLine, kStateRadius);
        return true;
    }
    const QString image = imageOf(widget);
    if (image.isEmpty()) {
        return false;
    }
    painter.save();
    if (option.direction == Qt::RightToLeft && image == QLatin1String("arrow-right")) {
        painter.translate(option.rect.left() + option.rect.right() + 1, 0);
        painter.scale(-1, 1);
    }
    paintImage(painter, option.rect, image, m_colours.icon);
    painter.restore();
    return true;
}

void EditorStyle::paintItem(const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (item == nullptr) {
        return;
    }
    if (isPlanTable(widget) && item->index.column() > 0) {
        paintRow(*painter, m_colours, *item, widget);
        paintCaption(*painter, *item);
        return;
    }
    // A selected row is tinted, and its text stays what it is.
    QStyleOptionViewItem tinted(*item);
    tinted.palette.setColor(QPalette::HighlightedText, item->palette.color(QPalette::Text));
    tinted.state &= ~QStyle::State_HasFocus;
    if (const int inset = cellInset(*proxy(), *item, widget); inset > 0) {
        // The ground goes up to the frame.
        paintRow(*painter, m_colours, *item, widget);
        tinted.rect = withInset(tinted.rect, inset, tinted.direction);
    }
    if (isChooserList(widget)) {
        // The number of a row is set a little lower than the toolkit sets its texts.
        tinted.rect.adjust(0, kListTextDrop, 0, 0);
    }
    QProxyStyle::drawControl(CE_ItemViewItem, &tinted, painter, widget);
    if ((item->state & State_HasFocus) != 0) {
        paintFocus(*painter, m_colours, *item);
    }
}

} // namespace trel::desktop::look
