#pragma once

#include <QRect>
#include <QString>

namespace trel::desktop::access {

/// A widget that paints several things, which are no widgets themselves. A screen reader finds each
/// of them below it once installAccessibleParts() has been called.
class SpokenParts
{
public:
    SpokenParts() = default;
    virtual ~SpokenParts() = default;
    Q_DISABLE_COPY(SpokenParts)

    /// How many there are. They are known by their places in the order in which they are read, from
    /// 0; callers keep to the number of them.
    virtual int spokenCount() const = 0;
    virtual QString spokenName(int index) const = 0;
    /// What there is to say besides; may be empty.
    virtual QString spokenDescription(int index) const
    {
        Q_UNUSED(index)
        return QString();
    }
    /// Where it stands, in the widget's own coordinates. Empty for what is out of sight.
    virtual QRect spokenPlace(int index) const = 0;
    /// Which one the keys have reached, or -1.
    virtual int spokenCurrent() const { return -1; }
    /// Whether pressing one does something.
    virtual bool canPressSpoken() const { return false; }
    /// Does what a press on one of them does.
    virtual void pressSpoken(int index) { Q_UNUSED(index) }
};

} // namespace trel::desktop::access
