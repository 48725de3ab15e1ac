#include "StoreDriver.h"

#include <QSqlQuery>

#include <new>

namespace trel::mediadispatch {

namespace {

/// A connection that is in no list. The toolkit's own list is locked while it is changed, and stays
/// so where memory runs out meanwhile: its module knows no exceptions.
class UnlistedConnection : public QSqlDatabase
{
public:
    explicit UnlistedConnection(const QString& driver)
        : QSqlDatabase(driver)
    {}
};

/// Has the toolkit make what stands for no connection and for no query, which it needs for each one
/// that is made or goes. Where memory runs out there they stay half made, and the next need of them
/// waits for ever or throws, in a destructor too. So they are made before all others, and tried
/// once.
bool arePlaceholdersMade()
{
    static const bool areMade = [] {
        try {
            const QSqlDatabase none;
            return !none.isValid() && !QSqlQuery(none).isActive();
        } catch (const std::bad_alloc&) {
            return false;
        }
    }();
    return areMade;
}

} // namespace

QSqlDatabase unlistedConnection(const QString& driver)
{
    if (!arePlaceholdersMade()) {
        throw std::bad_alloc();
    }
    return UnlistedConnection(driver);
}

} // namespace trel::mediadispatch
