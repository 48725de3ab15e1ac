#include "catalogue/ProgramPreview.h"

#include "catalogue/PreviewPicture.h"
#include "catalogue/ProgramWords.h"
#include "memory/RememberedDialog.h"
#include "screen/ProgramPicture.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr int kStepMs = 1000;
constexpr int kPageMs = 10000;
/// A film of more milliseconds than a bar can count is shown up to there.
constexpr double kLongestMs = 2000000000.0;

} // namespace

ProgramPreview::ProgramPreview(QWidget* parent)
    : QDialog(parent)
    , m_picture(new PreviewPicture(this))
    , m_remark(new QLabel(this))
    , m_bar(new QWidget(this))
    , m_position(new QSlider(Qt::Horizontal, m_bar))
    , m_time(new QLabel(m_bar))
{
    setObjectName(QStringLiteral("programPreview"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    build();
    tell();
    resize(640, 420);
    new RememberedDialog(*this);
    connect(&m_pictures, &PreviewPictures::ready, this, &ProgramPreview::showPicture);
    connect(m_position, &QSlider::valueChanged, this, [this] {
        tell();
        read();
    });
    connect(&ScheduleHost::instance(), &ScheduleHost::catalogueChanged, this,
            &ProgramPreview::reload);
}

void ProgramPreview::build()
{
    m_picture->setObjectName(QStringLiteral("previewPicture"));
    m_remark->setObjectName(QStringLiteral("previewRemark"));
    m_remark->setTextFormat(Qt::PlainText);
    m_remark->setAlignment(Qt::AlignCenter);
    m_remark->setWordWrap(true);
    m_position->setObjectName(QStringLiteral("previewPosition"));
    m_position->setSingleStep(kStepMs);
    m_position->setPageStep(kPageMs);
    m_time->setObjectName(QStringLiteral("previewTime"));
    m_time->setTextFormat(Qt::PlainText);
    auto* bar = new QHBoxLayout(m_bar);
    bar->setContentsMargins(0, 0, 0, 0);
    bar->addWidget(m_position, 1);
    bar->addWidget(m_time);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_picture, 1);
    layout->addWidget(m_remark);
    layout->addWidget(m_bar);
}

void ProgramPreview::setProgram(int progIndex)
{
    const auto catalogue = ScheduleHost::instance().catalogue();
    const auto known = catalogue->find(progIndex);
    if (known == catalogue->end()) {
        return;
    }
    m_picture->setImage({});
    m_position->setValue(0);
    take(known->second);
}

void ProgramPreview::reload()
{
    const auto catalogue = ScheduleHost::instance().catalogue();
    const auto known = catalogue->find(m_program.progIndex);
    m_pictures.clear();
    m_isReading = false;
    if (known != catalogue->end() && isVisible()) {
        take(known->second);
    }
}

void ProgramPreview::take(const ProgramIten& program)
{
    m_program = program;
    m_isReading = false;
    m_picture->setKind(program.kind);
    m_bar->setVisible(hasPositions());
    m_position->setRange(0, static_cast<int>(qBound(0.0, program.durationMs, kLongestMs)));
    tell();
    read();
}

bool ProgramPreview::hasPositions() const
{
    return m_program.kind == ProgramKind::Video && m_program.durationMs > 0.0;
}

void ProgramPreview::read()
{
    // While one is read the bar may go on; the picture that it stands at by then comes next.
    if (!m_isReading && isVisible()) {
        showPicture();
    }
}

void ProgramPreview::showPicture()
{
    m_isReading = false;
    const QSize room = (QSizeF(m_picture->size()) * devicePixelRatioF()).toSize();
    const qint64 position = hasPositions() ? m_position->value() : 0;
    const PreviewPictures::Answer answer = m_pictures.picture(m_program, room, position);
    m_isReading = !answer.isKnown;
    if (answer.isKnown) {
        m_picture->setImage(answer.image);
    }
    tell();
}

QString ProgramPreview::remark() const
{
    if (m_program.isNull) {
        return tr("The file is not found.");
    }
    if (m_program.kind == ProgramKind::Audio) {
        return tr("Sound has no picture.");
    }
    if (m_program.kind == ProgramKind::Live) {
        return tr("A live source is seen on the screens alone.");
    }
    if (m_picture->image().isNull()) {
        return m_isReading ? tr("Reading…") : tr("It has no picture that can be read.");
    }
    return {};
}

void ProgramPreview::tell()
{
    setWindowTitle(tr("%1 – Preview").arg(programwords::name(m_program)));
    m_position->setAccessibleName(tr("Position"));
    m_picture->setAccessibleName(programwords::name(m_program));
    m_time->setText(tr("%1 of %2", "position and length")
                        .arg(programwords::length(m_position->value()),
                             programwords::length(m_program.durationMs)));
    m_remark->setText(remark());
    m_remark->setVisible(!m_remark->text().isEmpty());
}

void ProgramPreview::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        tell();
    }
}

void ProgramPreview::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    read();
}

void ProgramPreview::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    read();
}

} // namespace trel::desktop
