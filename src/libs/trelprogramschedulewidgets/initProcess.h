#pragma once

#include <QDialog>
#include <QMovie>

#include <memory>

class QLabel;

namespace trel::mediadispatch {

/// A small, half transparent busy indicator without a frame: a running picture, nothing else.
///
/// The picture ":/qss/img/refresh.gif" is the host's; without it the indicator shows a drawn sign
/// that stands still. It is hidden until its owner shows it.
class initProcess : public QDialog
{
    Q_OBJECT

public:
    explicit initProcess(QWidget* parent = nullptr);

    /// Takes the name that a screen reader says from the language of the moment.
    void translate();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_label;
    std::unique_ptr<QMovie> m_movie;
};

} // namespace trel::mediadispatch
