#pragma once

#include "access/SpokenParts.h"
#include "look/ThemeColours.h"

#include <QString>
#include <QWidget>

#include <vector>

namespace trel::desktop::week {

struct WeekLayout;

/// What the colours and the patterns of a week mean: its programs, each in its colour, and the
/// signs of the picture. What has no room is counted, and stands in the tool tip.
class WeekLegend : public QWidget, public access::SpokenParts
{
    Q_OBJECT

public:
    explicit WeekLegend(QWidget* parent);

    /// Takes the programs of a week, in the order in which they first occur. Copies what it needs.
    void setLayoutOfWeek(const WeekLayout& layout);
    void setColours(const look::ThemeColours& colours);

    /// The programs of the week, whether or not they have room.
    int spokenCount() const override { return static_cast<int>(m_programs.size()); }
    QString spokenName(int index) const override;
    QRect spokenPlace(int index) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Sign
    {
        QString text;
        QColor ground;
        QColor line;
        QColor pattern; ///< Invalid for none.
    };
    struct Program
    {
        int index = -1;
        QString name;
    };

    std::vector<Sign> signs() const;
    std::vector<Sign> programSigns() const;
    int widthOf(const Sign& sign) const;
    void paintSign(QPainter& painter, const QRect& place, const Sign& sign) const;
    void describe();

    look::ThemeColours m_colours;
    std::vector<Program> m_programs;
};

} // namespace trel::desktop::week
