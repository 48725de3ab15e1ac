#pragma once

#include <QWidget>

namespace trel::desktop::air {

/// A lamp with a word beside it: red and full while a schedule is in effect, an empty ring while
/// none is.
class AirLight : public QWidget
{
    Q_OBJECT

public:
    explicit AirLight(QWidget* parent);

    bool isOn() const { return m_isOn; }
    void setOn(bool isOn);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QString word() const;
    void describe();

    bool m_isOn = false;
};

} // namespace trel::desktop::air
