#include "PlainWindow.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace bench {

namespace {

/// Some of the panels' contents wait for a schedule that runs.
template <typename Widget>
Widget* hidden(Widget* widget)
{
    widget->hide();
    return widget;
}

/// What to do where there are no players, above their list.
QWidget* playersAndHint()
{
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    auto* area = new QScrollArea(panel);
    area->setWidget(new QLabel(area));
    layout->addWidget(area);
    auto* screens = new QTableView(panel);
    screens->setModel(new QStandardItemModel(0, 4, screens));
    screens->verticalHeader()->hide();
    layout->addWidget(hidden(screens));
    return panel;
}

QLabel* line(const char* text, QWidget* parent)
{
    auto* label = new QLabel(QLatin1String(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

QHBoxLayout* row(std::initializer_list<QWidget*> leading, std::initializer_list<QWidget*> trailing)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (QWidget* widget : leading) {
        row->addWidget(widget);
    }
    row->addStretch(1);
    for (QWidget* widget : trailing) {
        row->addWidget(widget);
    }
    return row;
}

QStandardItemModel* makePrograms(int count, QObject* parent)
{
    auto* model = new QStandardItemModel(0, 5, parent);
    model->setHorizontalHeaderLabels({QStringLiteral("No."), QStringLiteral("Program"),
                                      QStringLiteral("Kind"), QStringLiteral("Length"),
                                      QStringLiteral("File")});
    for (int index = 1; index <= count; ++index) {
        const QStringList texts{QString::number(index), QStringLiteral("Programme %1").arg(index),
                                QStringLiteral("Video"), QStringLiteral("00:00:12"),
                                QStringLiteral("/srv/media/Programme %1.mp4").arg(index)};
        QList<QStandardItem*> cells;
        for (const QString& text : texts) {
            cells.append(new QStandardItem(text));
        }
        cells[0]->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        cells[3]->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        model->appendRow(cells);
    }
    return model;
}

QPushButton* sign(const char* text, QWidget* parent)
{
    auto* button = new QPushButton(QLatin1String(text), parent);
    button->setAutoDefault(false);
    button->setFixedWidth(28);
    return button;
}

} // namespace

PlainWindow::PlainWindow(int programs)
{
    addMenus();
    addBar();
    addPanels(programs);
    setCentralWidget(middle());
    // Speaks to screen readers, once there is something to say.
    hidden(new QWidget(this))->resize(0, 0);
    resize(1350, 700);
}

void PlainWindow::addMenus()
{
    const std::initializer_list<std::pair<const char*, int>> menus = {
        {"&Schedule", 12}, {"&Programs", 4},  {"&Week", 4},
        {"&View", 8},      {"&Language", 10}, {"&Help", 3}};
    for (const auto& [title, actions] : menus) {
        QMenu* menu = menuBar()->addMenu(QLatin1String(title));
        for (int i = 0; i < actions; ++i) {
            menu->addAction(QStringLiteral("Action %1").arg(i));
        }
        if (menuBar()->actions().size() == 1) {
            menu->addMenu(QStringLiteral("Recent"));
        }
    }
}

void PlainWindow::addBar()
{
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("bar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const char* text : {"Edit", "Import", "Undo", "", "Start", "Stop", "", "Search"}) {
        if (*text == 0) {
            bar->addSeparator();
        } else {
            bar->addAction(QLatin1String(text));
        }
    }
    auto* state = new QWidget(bar);
    state->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(state);
    layout->addWidget(line("Saved: 12:00", state), 1);
    layout->addWidget(new QWidget(state));
    layout->addWidget(new QLabel(QStringLiteral("12:00:00"), state));
    bar->addWidget(state);
    addToolBar(bar);
}

QWidget* PlainWindow::filter(QWidget* parent)
{
    auto* filter = new QWidget(parent);
    auto* search = new QLineEdit(filter);
    search->setClearButtonEnabled(true);
    auto* kinds = new QComboBox(filter);
    kinds->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const char* kind : {"All kinds", "Video", "Audio", "Image", "Live", "Other"}) {
        kinds->addItem(QLatin1String(kind));
    }
    auto* layout = new QVBoxLayout(filter);
    layout->addWidget(search);
    layout->addLayout(row({kinds}, {new QLabel(QStringLiteral("8 programs"), filter)}));
    layout->addLayout(row({new QCheckBox(QStringLiteral("Missing"), filter),
                           new QCheckBox(QStringLiteral("Unused"), filter)},
                          {}));
    return filter;
}

QWidget* PlainWindow::catalogue(int programs)
{
    auto* centre = new QWidget(this);
    auto* table = new QTableView(centre);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->setModel(makePrograms(programs, this));
    table->setColumnWidth(0, 60);
    table->setColumnWidth(1, 260);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filter(centre));
    layout->addWidget(hidden(new QLabel(QStringLiteral("No programs yet."), centre)), 1);
    layout->addWidget(table, 1);
    return centre;
}

void PlainWindow::addPanels(int programs)
{
    QDockWidget* list =
        addPanel(QStringLiteral("Catalog"), catalogue(programs), Qt::LeftDockWidgetArea);
    auto* picture = new QWidget;
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    picture->setSizePolicy(policy);
    picture->setMinimumSize(160, 90);

    auto* scrolled = new QScrollArea;
    scrolled->setWidgetResizable(true);
    scrolled->setWidget(nowNext());
    QDockWidget* now = addPanel(QStringLiteral("Now and next"), scrolled, Qt::RightDockWidgetArea);
    QDockWidget* preview = addPanel(QStringLiteral("Preview"), picture, Qt::RightDockWidgetArea);
    hidden(addPanel(QStringLiteral("Clock changes"), clockChanges(), Qt::BottomDockWidgetArea));
    QDockWidget* wrong = addPanel(QStringLiteral("Problems"), problems(), Qt::BottomDockWidgetArea);
    auto* desks = new QLabel(statusBar());
    desks->hide();
    statusBar()->addPermanentWidget(desks);
    auto* number = new QToolButton(statusBar());
    number->setText(QStringLiteral("No open problems"));
    number->setAutoRaise(true);
    statusBar()->addPermanentWidget(number);
    hidden(addPanel(QStringLiteral("History"), new QListView, Qt::RightDockWidgetArea));
    tabifyDockWidget(wrong, hidden(addPanel(QStringLiteral("Players"), playersAndHint(),
                                            Qt::BottomDockWidgetArea)));
    auto* players = new QToolButton(statusBar());
    players->setAutoRaise(true);
    statusBar()->addPermanentWidget(players);
    players->hide();
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    resizeDocks({list, now}, {275, 260}, Qt::Horizontal);
    resizeDocks({now, preview}, {480, 120}, Qt::Vertical);
    resizeDocks({wrong}, {132}, Qt::Vertical);
}

QDockWidget* PlainWindow::addPanel(const QString& title, QWidget* content, Qt::DockWidgetArea area)
{
    auto* panel = new QDockWidget(title, this);
    panel->setObjectName(title);
    panel->setWidget(content);
    addDockWidget(area, panel);
    return panel;
}

QWidget* PlainWindow::nowNext()
{
    auto* panel = new QWidget;
    auto* program = line("Not started", panel);
    QFont large = font();
    large.setBold(true);
    large.setPixelSize(16);
    program->setFont(large);

    auto* nextPart = new QWidget(panel);
    auto* rule = new QFrame(nextPart);
    rule->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Plain));
    auto* nextProgram = line("Nothing else is scheduled.", nextPart);
    QFont bold = font();
    bold.setBold(true);
    nextProgram->setFont(bold);
    auto* next = new QVBoxLayout(nextPart);
    next->setContentsMargins(0, 4, 0, 0);
    next->setSpacing(4);
    next->addWidget(rule);
    next->addLayout(row({line("Next", nextPart)}, {hidden(line("Cut in", nextPart))}));
    next->addWidget(nextProgram);
    next->addWidget(hidden(line("", nextPart)));
    next->addWidget(hidden(line("", nextPart)));

    auto* bar = new QProgressBar(panel);
    bar->setTextVisible(false);
    auto* reason = line("The schedule has not been started. Nothing is put on screen.", panel);
    reason->setWordWrap(true);
    reason->setMinimumHeight(2 * reason->fontMetrics().lineSpacing());
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(12, 8, 12, 10);
    layout->setSpacing(4);
    layout->addLayout(row({new QLabel(QStringLiteral("Now"), panel)},
                          {hidden(line("Cut in", panel)), hidden(line("plays", panel))}));
    layout->addWidget(program);
    layout->addWidget(hidden(bar));
    layout->addLayout(row({hidden(line("0:00", panel))}, {hidden(line("0:00", panel))}));
    layout->addWidget(hidden(line("", panel)));
    layout->addWidget(hidden(line("", panel)));
    layout->addWidget(reason);
    layout->addWidget(hidden(line("", panel)));
    layout->addWidget(hidden(nextPart));
    layout->addWidget(hidden(new QWidget(panel)));
    layout->addStretch(1);
    auto* effect = new QWidget(panel);
    auto* effectLayout = new QVBoxLayout(effect);
    effectLayout->setContentsMargins(0, 0, 0, 0);
    effectLayout->setSpacing(4);
    effectLayout->addWidget(line("", effect));
    effectLayout->addWidget(hidden(line("", effect)));
    layout->addWidget(hidden(effect));
    return panel;
}

QWidget* PlainWindow::clockChanges()
{
    auto* list = new QListWidget;
    list->setWordWrap(true);
    list->setResizeMode(QListView::Adjust);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setFrameShape(QFrame::NoFrame);
    list->addItem(QStringLiteral("No clock change falls within the validity of any task."));
    return list;
}

QWidget* PlainWindow::middle()
{
    auto* page = new QWidget;
    auto* year = new QWidget(page);
    year->setMinimumHeight(46);
    auto* reason = line("Click a block to see why it is on screen, or why not.", page);
    reason->setWordWrap(true);
    reason->setMinimumHeight(4 * reason->fontMetrics().lineSpacing());
    auto* below = new QHBoxLayout;
    below->addWidget(reason, 1);
    below->addWidget(new QWidget(page), 1);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(year);
    layout->addWidget(week(), 1);
    layout->addLayout(below);
    return page;
}

QWidget* PlainWindow::problems()
{
    auto* panel = new QWidget;
    auto* table = new QTableView(panel);
    auto* model = new QStandardItemModel(3, 4, this);
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    auto* none = hidden(new QLabel(QStringLiteral("No problems."), panel));
    none->setAlignment(Qt::AlignCenter);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(new QPushButton(QStringLiteral("Go to the row"), panel));
    buttons->addWidget(new QPushButton(QStringLiteral("Split in two"), panel));
    buttons->addStretch(1);
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 6, 0);
    layout->addWidget(table, 1);
    layout->addWidget(none, 1);
    layout->addLayout(buttons);
    return panel;
}

QWidget* PlainWindow::week()
{
    auto* panel = new QWidget;
    auto* source = new QComboBox(panel);
    source->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    source->addItems({QStringLiteral("As edited"), QStringLiteral("In effect")});
    auto* view = new QAbstractScrollArea(panel);
    new QWidget(view); // Dates above the days, and hours beside them.
    new QWidget(view);
    hidden(new QWidget(view->viewport())); // Where a block that is moved is drawn,
    hidden(new QWidget(view->viewport())); // and the plans of a day.

    auto* controls = new QHBoxLayout;
    controls->setSpacing(4);
    controls->addWidget(sign("<<", panel));
    controls->addWidget(sign("<", panel));
    controls->addWidget(new QPushButton(QStringLiteral("Today"), panel));
    controls->addWidget(sign(">", panel));
    controls->addWidget(sign(">>", panel));
    controls->addWidget(new QPushButton(QStringLiteral("2026.11.16 - 2026.11.22"), panel));
    controls->addStretch();
    controls->addWidget(source);
    controls->addWidget(sign("-", panel));
    controls->addWidget(sign("+", panel));
    controls->addWidget(new QPushButton(QStringLiteral("Whole day"), panel));
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(controls);
    layout->addWidget(view, 1);
    return panel;
}

} // namespace bench
