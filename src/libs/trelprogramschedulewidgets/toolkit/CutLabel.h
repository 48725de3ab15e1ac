#pragma once

#include <QLabel>

namespace trel::mediadispatch {

/// A label of one line of plain text. What it has no room for it cuts, with dots, and shows in a
/// tool tip. It has no meta-object of its own, so that style sheets and qobject_cast take it for a
/// plain label.
class CutLabel : public QLabel
{
public:
    explicit CutLabel(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect roomForText() const;
    bool isCut() const;
};

} // namespace trel::mediadispatch
