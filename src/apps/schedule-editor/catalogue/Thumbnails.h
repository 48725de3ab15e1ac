#pragma once

#include "screen/PreviewPictures.h"
#include "service/ScheduleRecords.h"

#include <QCache>
#include <QObject>
#include <QPixmap>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace trel::desktop {

/// Small pictures of programs, all in one frame: the image or the first picture of the film, or a
/// sign of the kind while none is there.
///
/// They are read one by one in another thread, those alone that are wished for, and kept up to a
/// bound of memory.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /// The size of the frame, in points.
    static QSize frame();

    explicit Thumbnails(QObject* parent = nullptr);
    ~Thumbnails() override;

    /// Reads the pictures of these programs that are not known yet, the first ones first, and gives
    /// up all others. None: nothing is read.
    void wish(const std::vector<trel::mediadispatch::ProgramIten>& programs);
    /// The picture of a program, with a sign in its place while there is none. Reads nothing.
    QPixmap picture(const trel::mediadispatch::ProgramIten& program);
    /// Files may have changed: every picture is read again when it is next wished for, and shown
    /// as it was until then.
    void renew();
    /// The number of dots in a point; with another one all pictures are read again.
    void setDotsPerPoint(qreal dots);

    /// How many pictures are known, for tests of the bound.
    int known() const { return m_known.count(); }

signals:
    /// The picture of a program has been read.
    void ready(int progIndex);

private:
    struct Picture
    {
        QPixmap pixmap; ///< Null: there is none that can be read.
        int generation = 0;
    };

    bool isWanted(const trel::mediadispatch::ProgramIten& program) const;
    void readNext();
    void take();
    void keep(const trel::mediadispatch::ProgramIten& program, const QImage& image);
    QPixmap framed(const QImage& image) const;
    QPixmap sign(trel::mediadispatch::ProgramKind kind);
    QSize room() const;

    PreviewPictures m_reader;
    QCache<QString, Picture> m_known; ///< By paths; cost in kilobytes.
    std::map<trel::mediadispatch::ProgramKind, QPixmap> m_signs;
    std::vector<trel::mediadispatch::ProgramIten> m_wanted; ///< The next one at the end.
    std::optional<trel::mediadispatch::ProgramIten> m_running;
    int m_generation = 0;
    qreal m_dots = 1.0;
};

} // namespace trel::desktop
