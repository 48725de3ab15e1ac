#include "PlainDialog.h"

#include "PlainList.h"

#include <QFrame>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace bench {

namespace {

QPushButton* flatButton(QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    button->setFlat(true);
    button->setFixedSize(26, 26);
    return button;
}

QPushButton* textButton(const char* text, QWidget* parent)
{
    auto* button = new QPushButton(QLatin1String(text), parent);
    button->setMinimumSize(58, 25);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QVBoxLayout* tightLayout(QWidget* owner)
{
    auto* layout = new QVBoxLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

PlainDialog::PlainDialog()
    : m_list(new PlainList)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    auto* frame = new QFrame(this);
    frame->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    auto* client = new QWidget(frame);
    tightLayout(client)->addWidget(panel());
    QVBoxLayout* inner = tightLayout(frame);
    inner->addWidget(title());
    inner->addWidget(client, 1);
    tightLayout(this)->addWidget(frame);
}

QWidget* PlainDialog::title()
{
    auto* bar = new QWidget;
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(8, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(new QLabel(QStringLiteral("Play schedule"), bar), 1);
    layout->addWidget(flatButton(bar));
    auto* scale = flatButton(bar);
    scale->hide();
    layout->addWidget(scale);
    layout->addWidget(flatButton(bar));
    return bar;
}

QWidget* PlainDialog::panel()
{
    auto* panel = new QWidget;
    panel->setFixedSize(1140, 600);
    panel->setAttribute(Qt::WA_StyledBackground);
    auto* area = new QScrollArea(panel);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->verticalScrollBar()->setFixedWidth(8);
    m_list->setObjectName(QStringLiteral("widget"));
    m_list->setStyleSheet(QStringLiteral("QWidget#widget{background:transparent;}"));
    area->setWidget(m_list);
    addOverlays(*area);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    buttons->addStretch();
    for (const char* name : {"Cancel", "Start", "OK"}) {
        buttons->addWidget(textButton(name, panel));
    }
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(11, 11, 11, 11);
    layout->setSpacing(6);
    layout->addWidget(textButton("Add play task", panel));
    layout->addWidget(area);
    layout->addLayout(buttons);
    return panel;
}

void PlainDialog::addOverlays(QWidget& area)
{
    auto* hint = new QLabel(QStringLiteral("No play tasks yet"), &area);
    hint->hide();
    auto* layout = new QVBoxLayout(&area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(hint, 0, Qt::AlignHCenter);

    auto* process = new QDialog(m_list);
    process->setFixedSize(35, 35);
    auto* picture = new QLabel(process);
    auto* movie = new QMovie(QStringLiteral(MOVIE), QByteArray(), process);
    picture->setMovie(movie);
    movie->start();
}

void PlainDialog::build(int tasks)
{
    m_list->build(sampleTasks(tasks, 0), DayLists::NotMade);
}

} // namespace bench
