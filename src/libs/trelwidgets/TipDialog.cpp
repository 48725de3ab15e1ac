#include "trelwidgets/TipDialog.h"

#include "FrameTitle.h"
#include "SignLabel.h"
#include "WindowFrame.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace trel::widgets {

namespace {

constexpr std::size_t kButtonCount = 3;
constexpr int kMinimumTextWidth = 220;
constexpr int kMaximumTextWidth = 420;

/// Whether a prompt may stand over it. Some systems take a menu for a window that may be active.
bool canBeBelow(const QWidget* window)
{
    return window && window->isVisible() &&
           (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
}

/// The youngest window in sight besides the prompt; none when the application shows no other.
QWidget* youngestWindow(const QWidget& prompt)
{
    QWidget* youngest = nullptr;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWindow* const window : windows) {
        const auto found =
            std::find_if(widgets.begin(), widgets.end(), [window, &prompt](const QWidget* widget) {
                return widget != &prompt && widget->windowHandle() == window && canBeBelow(widget);
            });
        if (found != widgets.end()) {
            youngest = *found;
        }
    }
    return youngest;
}

/// The window that an answer is wanted for; none when the application shows no window.
QWidget* windowBelow(const QWidget& prompt)
{
    if (prompt.parentWidget()) {
        return prompt.parentWidget()->window();
    }
    if (QWidget* const modal = QApplication::activeModalWidget()) {
        return modal;
    }
    // Right after another dialog has closed, the system has yet to name the next active window.
    QWidget* const active = QApplication::activeWindow();
    return canBeBelow(active) ? active : youngestWindow(prompt);
}

bool isHeldDown(QEvent* event)
{
    return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat();
}

} // namespace

class TipDialog::Private
{
public:
    Private(TipDialog* dialog, int tipType)
        : q(dialog)
        , type(tipType == Confirmation ? Confirmation : Notice)
        , frame(new WindowFrame(dialog))
        , icon(new SignLabel(frame->client()))
        , text(new QLabel(frame->client()))
    {
        frame->title()->setMinimiseVisible(false);
        icon->setObjectName(QStringLiteral("dialogTipIcon"));
        icon->setProperty("labelImage", type == Confirmation ? QStringLiteral("question")
                                                             : QStringLiteral("notice"));
        text->setObjectName(QStringLiteral("dialogTipLabel"));
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        for (std::size_t i = 0; i < kButtonCount; ++i) {
            buttons[i] = makeButton(static_cast<int>(i) + 1);
        }
        layOut();
    }

    /// A window that ends while the prompt waits, as that of a progress does, leaves it to another.
    void belongTo(const QWidget& below)
    {
        q->windowHandle()->setTransientParent(below.windowHandle());
        connect(below.windowHandle(), &QObject::destroyed, q, [this] {
            if (const QWidget* const next = youngestWindow(*q)) {
                belongTo(*next);
            }
        });
    }

    void showIcon()
    {
        const QStyle::StandardPixmap image =
            type == Confirmation ? QStyle::SP_MessageBoxQuestion : QStyle::SP_MessageBoxWarning;
        const int side = q->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, q);
        const QIcon sign =
            signIcon.isNull() ? q->style()->standardIcon(image, nullptr, q) : signIcon;
        icon->setPixmap(sign.pixmap(q->windowHandle(), QSize(side, side)));
    }

    /// Wide enough for a short text on one line; a long one gets as many lines as it takes, and
    /// scrolls where the screen is lower than that.
    void fitText()
    {
        text->ensurePolished();
        const QString words = text->text();
        const int oneLine =
            text->fontMetrics().boundingRect(QRect(), int(Qt::TextExpandTabs), words).width();
        const int longestWord = text->minimumSizeHint().width();
        const int wanted =
            qMax(longestWord, qBound(kMinimumTextWidth, oneLine + 2, kMaximumTextWidth));
        const int width = qMin(wanted, q->screen()->availableSize().width() * 3 / 4);
        const int least = icon->sizeHint().height();
        const int height = qMax(text->heightForWidth(width), least);
        const int room = qMax(q->screen()->availableSize().height() - aroundText(), least);
        text->setFixedSize(width, height);
        if (height > room && textArea == nullptr) {
            scrollText();
        }
        if (textArea != nullptr) {
            const int bar = textArea->verticalScrollBar()->sizeHint().width();
            textArea->setFixedSize(width + (height > room ? bar : 0), qMin(height, room));
        }
    }

    /// What the prompt is higher than its text.
    int aroundText() const
    {
        const QLayout& layout = *frame->client()->layout();
        const QMargins margins = layout.contentsMargins();
        return frame->title()->sizeHint().height() + margins.top() + margins.bottom() +
               layout.spacing() + buttons[0]->sizeHint().height() + 2 * frame->frameWidth();
    }

    void scrollText()
    {
        textArea = new QScrollArea(frame->client());
        textArea->setObjectName(QStringLiteral("dialogTipArea"));
        textArea->setFrameShape(QFrame::NoFrame);
        textArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        const std::unique_ptr<QLayoutItem> former(message->replaceWidget(text, textArea));
        textArea->setWidget(text);
        // The ground is that of the prompt.
        text->setAutoFillBackground(false);
        textArea->viewport()->setAutoFillBackground(false);
        QWidget::setTabOrder(textArea, buttons.back());
        textArea->show();
    }

    void chooseDefault()
    {
        std::array<QPushButton*, kButtonCount> order = buttons;
        const auto wanted = static_cast<std::size_t>(enterButton - 1);
        if (wanted < order.size() && !order[wanted]->isHidden()) {
            std::swap(order[0], order[wanted]);
        }
        const auto found = std::find_if(order.begin(), order.end(), [](const QPushButton* button) {
            return !button->isHidden();
        });
        if (found != order.end()) {
            (*found)->setDefault(true);
            (*found)->setFocus();
        }
    }

    void placeOver(QWidget* below)
    {
        q->layout()->activate();
        const QScreen* screen = below ? below->screen() : q->screen();
        const QRect area = screen->availableGeometry();
        QRect placed(QPoint(), q->size());
        placed.moveCenter(below ? below->frameGeometry().center() : area.center());
        placed.moveBottom(qMin(placed.bottom(), area.bottom()));
        placed.moveRight(qMin(placed.right(), area.right()));
        placed.moveTop(qMax(placed.top(), area.top()));
        placed.moveLeft(qMax(placed.left(), area.left()));
        q->move(placed.topLeft());
    }

    /// A picture needs a name, and a title that the prompt was given says what it stands for. That
    /// of the window below says nothing of the picture.
    void nameIcon() { icon->setAccessibleName(q->windowTitle()); }

    void takeTitleFrom(const QWidget* below)
    {
        if (q->windowTitle().isEmpty()) {
            const QString title = below ? below->windowTitle() : QString();
            q->setWindowTitle(title.isEmpty() ? QGuiApplication::applicationDisplayName() : title);
        }
    }

    TipDialog* q;
    TipType type;
    WindowFrame* frame;
    QLabel* icon;
    QLabel* text;
    QScrollArea* textArea = nullptr; ///< Once the screen was lower than the text.
    QHBoxLayout* message = nullptr;
    std::array<QPushButton*, kButtonCount> buttons{};
    int enterButton = 1;
    QIcon signIcon; ///< Null for that of the type.
    /// Shared with run(), which needs it when the dialog has died in the meantime.
    std::shared_ptr<int> pressed = std::make_shared<int>(0);

private:
    QPushButton* makeButton(int number)
    {
        auto* button = new QPushButton(frame->client());
        button->setObjectName(QStringLiteral("tipButton%1").arg(number));
        button->setProperty("style",
                            number == 1 ? QStringLiteral("general") : QStringLiteral("assist"));
        button->hide();
        button->installEventFilter(q);
        QObject::connect(button, &QPushButton::clicked, q, [this, number] {
            *pressed = number;
            q->accept();
        });
        return button;
    }

    void layOut()
    {
        message = new QHBoxLayout;
        message->setSpacing(14);
        message->addWidget(icon, 0, Qt::AlignTop);
        message->addWidget(text, 1);

        auto* row = new QHBoxLayout;
        row->setSpacing(8);
        row->addStretch();
        // The first one ends the row, where the editor and the chooser have what they are for. Tab
        // goes along the row.
        QWidget* former = nullptr;
        for (auto button = buttons.rbegin(); button != buttons.rend(); ++button) {
            row->addWidget(*button);
            if (former != nullptr) {
                QWidget::setTabOrder(former, *button);
            }
            former = *button;
        }

        auto* layout = new QVBoxLayout(frame->client());
        layout->setContentsMargins(18, 16, 18, 14);
        layout->setSpacing(18);
        layout->addLayout(message, 1);
        layout->addLayout(row);
        q->layout()->setSizeConstraint(QLayout::SetFixedSize);
    }
};

TipDialog::TipDialog(int tipType, QWidget* parent)
    : QDialog(parent, WindowFrame::windowFlags() & ~Qt::WindowMinimizeButtonHint)
    , d(std::make_unique<Private>(this, tipType))
{
    setWindowModality(Qt::ApplicationModal);
}

TipDialog::~TipDialog() = default;

void TipDialog::setTipText(const QString& text)
{
    d->text->setText(text);
    // What a screen reader says besides the title when the prompt opens.
    setAccessibleDescription(text);
    d->fitText();
}

void TipDialog::setBtnText(const QString& first, const QString& second, const QString& third)
{
    const std::array<QString, kButtonCount> texts{first, second, third};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        d->buttons[i]->setText(texts[i]);
        d->buttons[i]->setVisible(!texts[i].isEmpty());
    }
}

void TipDialog::setEnterButton(int number)
{
    d->enterButton = number;
}

PromptBoxTriggerInfo TipDialog::run()
{
    const QPointer<TipDialog> self(this);
    const std::shared_ptr<int> pressed = d->pressed;
    QWidget* below = windowBelow(*this);
    d->nameIcon();
    d->takeTitleFrom(below);
    d->showIcon();
    d->fitText();
    d->chooseDefault();
    d->placeOver(below);
    if (below && !parentWidget()) {
        // A window manager keeps the prompt above the window that it belongs to.
        winId();
        d->belongTo(*below);
    }
    exec();
    delete self.data();
    return {*pressed};
}

void TipDialog::setSignIcon(const QIcon& icon)
{
    d->signIcon = icon;
}

void TipDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) {
        d->showIcon();
        d->fitText();
    } else if (event->type() == QEvent::PaletteChange) {
        // The icon may be drawn in colours of the palette.
        d->showIcon();
    }
}

bool TipDialog::eventFilter(QObject* watched, QEvent* event)
{
    return isHeldDown(event) || QDialog::eventFilter(watched, event);
}

} // namespace trel::widgets
