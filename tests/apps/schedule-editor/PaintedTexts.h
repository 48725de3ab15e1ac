#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QStringList>

#include <memory>

/// A device that remembers what is written on it and draws nothing.
class PaintedTexts : public QPaintDevice
{
public:
    explicit PaintedTexts(const QSize& size);
    ~PaintedTexts() override;

    /// Everything that was written, in order.
    QStringList texts() const;
    /// The families of the font of each of them, with commas between.
    QStringList families() const;

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSize m_size;
    std::unique_ptr<Engine> m_engine;
};
