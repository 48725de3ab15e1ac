#include "catalogue/Thumbnails.h"

#include "screen/PreviewDrawings.h"
#include "screen/ProgramPicture.h"

#include <QPainter>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr int kMostKilobytes = 16 * 1024;

QString pathOf(const ProgramIten& program)
{
    return QString::fromStdString(program.mediaPath);
}

} // namespace

QSize Thumbnails::frame()
{
    // As wide for its height as most screens are.
    return {48, 27};
}

Thumbnails::Thumbnails(QObject* parent)
    : QObject(parent)
    , m_known(kMostKilobytes)
{
    connect(&m_reader, &PreviewPictures::ready, this, &Thumbnails::take);
}

Thumbnails::~Thumbnails() = default;

QSize Thumbnails::room() const
{
    return (QSizeF(frame()) * m_dots).toSize();
}

bool Thumbnails::isWanted(const ProgramIten& program) const
{
    if (program.isNull || !hasPicture(program.kind)) {
        return false;
    }
    const Picture* known = m_known.object(pathOf(program));
    return known == nullptr || known->generation != m_generation;
}

void Thumbnails::wish(const std::vector<ProgramIten>& programs)
{
    m_wanted.clear();
    for (auto program = programs.rbegin(); program != programs.rend(); ++program) {
        if (isWanted(*program)) {
            m_wanted.push_back(*program);
        }
    }
    const bool isStillWanted =
        m_running && std::any_of(m_wanted.begin(), m_wanted.end(), [this](const ProgramIten& one) {
            return one.mediaPath == m_running->mediaPath;
        });
    if (!isStillWanted) {
        m_running.reset();
        m_reader.clear();
        readNext();
    }
}

void Thumbnails::readNext()
{
    while (!m_running && !m_wanted.empty()) {
        const ProgramIten program = m_wanted.back();
        m_wanted.pop_back();
        if (!isWanted(program)) {
            continue;
        }
        const PreviewPictures::Answer answer = m_reader.picture(program, room());
        if (answer.isKnown) {
            keep(program, answer.image);
        } else {
            m_running = program;
        }
    }
}

void Thumbnails::take()
{
    if (!m_running) {
        return;
    }
    const ProgramIten program = *m_running;
    const PreviewPictures::Answer answer = m_reader.picture(program, room());
    if (!answer.isKnown) {
        return;
    }
    m_running.reset();
    // The reader's pictures are for whole windows; ten of them would weigh more than all of these.
    m_reader.clear();
    keep(program, answer.image);
    readNext();
}

void Thumbnails::keep(const ProgramIten& program, const QImage& image)
{
    const QSize size = room();
    const int cost = size.width() * size.height() * 4 / 1024 + 1;
    m_known.insert(pathOf(program),
                   new Picture{image.isNull() ? QPixmap() : framed(image), m_generation}, cost);
    emit ready(program.progIndex);
}

QPixmap Thumbnails::framed(const QImage& image) const
{
    const QImage scaled = image.scaled(room(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap pixmap(room());
    pixmap.fill(Qt::black);
    QPainter painter(&pixmap);
    QRect place = scaled.rect();
    place.moveCenter(pixmap.rect().center());
    painter.drawImage(place.topLeft(), scaled);
    painter.end();
    pixmap.setDevicePixelRatio(m_dots);
    return pixmap;
}

QPixmap Thumbnails::sign(ProgramKind kind)
{
    QPixmap& sign = m_signs[kind];
    if (sign.isNull()) {
        sign = QPixmap(room());
        QPainter painter(&sign);
        painter.setRenderHint(QPainter::Antialiasing);
        // The drawings leave much room around them, which is little here.
        paintPlaceholder(painter,
                         sign.rect().adjusted(-sign.width() / 2, -sign.height() / 2,
                                              sign.width() / 2, sign.height() / 2),
                         kind);
        painter.end();
        sign.setDevicePixelRatio(m_dots);
    }
    return sign;
}

QPixmap Thumbnails::picture(const ProgramIten& program)
{
    const Picture* known = program.isNull ? nullptr : m_known.object(pathOf(program));
    return known == nullptr || known->pixmap.isNull() ? sign(program.kind) : known->pixmap;
}

void Thumbnails::renew()
{
    ++m_generation;
}

void Thumbnails::setDotsPerPoint(qreal dots)
{
    if (!qFuzzyCompare(dots, m_dots)) {
        m_dots = dots;
        m_signs.clear();
        m_known.clear();
    }
}

} // namespace trel::desktop
