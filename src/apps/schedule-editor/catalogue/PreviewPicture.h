#pragma once

#include "service/ScheduleRecords.h"

#include <QImage>
#include <QWidget>

namespace trel::desktop {

/// A picture, whole and in its own shape, or a sign of a kind of programs.
class PreviewPicture : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPicture(QWidget* parent);

    /// Null: the sign is shown.
    void setImage(const QImage& image);
    void setKind(trel::mediadispatch::ProgramKind kind);
    const QImage& image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
    trel::mediadispatch::ProgramKind m_kind = trel::mediadispatch::ProgramKind::Other;
};

} // namespace trel::desktop
