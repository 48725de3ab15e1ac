#include "initProcess.h"

#include "ScheduleText.h"
#include "trelwidgets/Sign.h"

#include <QLabel>
#include <QPainter>

namespace trel::mediadispatch {

namespace {

constexpr int kSide = 35;
constexpr double kWindowOpacity = 0.6;
constexpr double kLabelOpacity = 0.5;

} // namespace

initProcess::initProcess(QWidget* parent)
    : QDialog(parent)
    , m_label(new QLabel(this))
    , m_movie(std::make_unique<QMovie>(QStringLiteral(":/qss/img/refresh.gif"), QByteArray()))
{
    setFixedSize(kSide, kSide);
    setWindowOpacity(kWindowOpacity);
    setWindowFlags(Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
    setContentsMargins(0, 0, 0, 0);
    translate();
    // Comes into force only if an embedding program makes the label a window.
    m_label->setWindowOpacity(kLabelOpacity);
    m_label->setMovie(m_movie.get());
    m_movie->start();
}

void initProcess::translate()
{
    setAccessibleName(scheduleText("zhScheduleLoading"));
}

void initProcess::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    if (!m_movie->isValid()) {
        QPainter painter(this);
        widgets::paintSign(painter, rect(), widgets::Sign::Refresh,
                           widgets::signColor(palette(), QPalette::WindowText, isEnabled()));
    }
}

} // namespace trel::mediadispatch
