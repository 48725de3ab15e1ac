#include "StyleHooks.h"

#include <QAbstractScrollArea>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVariant>

namespace trel::desktop::look {

namespace {

const QLatin1String kTableName("schedule");

QString text(const QWidget* widget, const char* property)
{
    return widget == nullptr ? QString() : widget->property(property).toString();
}

struct Image
{
    const char* hook;
    const char* drawing;
};

/// The properties and, for what has none, the object names.
constexpr Image kButtonImages[] = {
    {"projectSaveAs", "copy"}, {"delete", "delete"},         {"add", "add"},
    {"turnNext", "next"},      {"close", "close"},           {"pushButtonAdd", "add"},
    {"UpBtn", "up"},           {"DownBtn", "down"},          {"ButtonMin", "minimise"},
    {"ButtonMax", "maximise"}, {"ButtonRestore", "restore"},
};

QString buttonImage(const QString& hook)
{
    for (const Image& image : kButtonImages) {
        if (hook == QLatin1String(image.hook)) {
            return QLatin1String(image.drawing);
        }
    }
    return QString();
}

QString labelImage(const QWidget* label)
{
    const QString image = text(label, "labelImage");
    if (image == QLatin1String("right") || image == QLatin1String("down")) {
        return QStringLiteral("arrow-") + image;
    }
    return isNamed(label, "warningLab") ? QStringLiteral("warning") : QString();
}

} // namespace

bool isNamed(const QWidget* widget, const char* name)
{
    return widget != nullptr && widget->objectName() == QLatin1String(name);
}

QString styleOf(const QWidget* widget)
{
    return text(widget, "style");
}

ButtonKind buttonKind(const QWidget* button)
{
    if (isNamed(button, "title") && styleOf(button->parentWidget()) == QLatin1String("BG1")) {
        return ButtonKind::CardTitle;
    }
    if (isNamed(button, "lineEdit")) {
        return ButtonKind::FieldText;
    }
    if (!text(button, "imageBtn").isEmpty() || !imageOf(button).isEmpty()) {
        return ButtonKind::Image;
    }
    if (isNamed(button, "pushButtonAddTask")) {
        return ButtonKind::Wide;
    }
    const bool isGeneral =
        styleOf(button) == QLatin1String("general") || isNamed(button, "comfirmBtn");
    return isGeneral ? ButtonKind::General : ButtonKind::Plain;
}

QString imageOf(const QWidget* widget)
{
    if (qobject_cast<const QLabel*>(widget) != nullptr) {
        return labelImage(widget);
    }
    const auto* button = qobject_cast<const QPushButton*>(widget);
    if (button == nullptr || !button->icon().isNull()) {
        return QString();
    }
    const QString image = buttonImage(text(button, "imageBtn"));
    return image.isEmpty() ? buttonImage(button->objectName()) : image;
}

bool isChooserList(const QWidget* widget)
{
    if (widget == nullptr || widget->objectName() != kTableName) {
        return false;
    }
    const bool isHeader = qobject_cast<const QHeaderView*>(widget) != nullptr;
    const QWidget* table = isHeader ? widget->parentWidget() : widget;
    return table != nullptr && isNamed(table->parentWidget(), "ProgramChoose");
}

bool isChooserHeader(const QWidget* widget)
{
    return qobject_cast<const QHeaderView*>(widget) != nullptr && isChooserList(widget);
}

bool isCatalogue(const QWidget* widget)
{
    return isNamed(widget, "programTable");
}

bool isPlanTable(const QWidget* widget)
{
    return widget != nullptr && widget->objectName() == kTableName &&
           qobject_cast<const QTableView*>(widget) != nullptr && !isChooserList(widget);
}

bool isStateLabel(const QWidget* widget)
{
    return qobject_cast<const QLabel*>(widget) != nullptr && widget->property("row").isValid() &&
           widget->parentWidget() != nullptr && isPlanTable(widget->parentWidget()->parentWidget());
}

bool isOfCollision(const QWidget& label)
{
    return label.property("state").toString() == QLatin1String("collision");
}

bool isProgramField(const QWidget* widget)
{
    return styleOf(widget) == QLatin1String("BG3");
}

bool isInsideProgramField(const QWidget* widget)
{
    return isNamed(widget, "frame") && isProgramField(widget->parentWidget());
}

bool isWell(const QWidget* widget)
{
    return isNamed(widget, "scrollArea") &&
           qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

bool isLineOfChoices(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) != nullptr && widget->parentWidget() != nullptr &&
           widget->parentWidget()->inherits("trel::mediadispatch::MultiComboBox");
}

bool isCardList(const QWidget* widget)
{
    return widget != nullptr && widget->inherits("PlanList");
}

} // namespace trel::desktop::look
