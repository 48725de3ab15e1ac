#pragma once

#include "screen/PreviewPictures.h"
#include "service/ScheduleRecords.h"

#include <QDialog>

class QLabel;
class QSlider;

namespace trel::desktop {

class PreviewPicture;

/// A look at a program: an image whole, and a film at any position, which a bar chooses.
class ProgramPreview : public QDialog
{
    Q_OBJECT

public:
    explicit ProgramPreview(QWidget* parent);

    /// Shows a program from its begin. One that is not in the catalogue any more leaves what is
    /// shown.
    void setProgram(int progIndex);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void build();
    void reload();
    void take(const trel::mediadispatch::ProgramIten& program);
    void read();
    void showPicture();
    void tell();
    QString remark() const;
    bool hasPositions() const;

    PreviewPictures m_pictures;
    trel::mediadispatch::ProgramIten m_program;
    PreviewPicture* m_picture;
    QLabel* m_remark;
    QWidget* m_bar;
    QSlider* m_position;
    QLabel* m_time;
    bool m_isReading = false; ///< The next picture is asked for when this one has come.
};

} // namespace trel::desktop
