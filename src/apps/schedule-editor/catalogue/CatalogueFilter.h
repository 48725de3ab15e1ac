#pragma once

#include "catalogue/CatalogueWish.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace trel::desktop {

/// Where the operator says which programs of the catalogue to show: words to search for, a kind,
/// those whose file has gone and those that no plan plays. Tells how many are left of how many.
class CatalogueFilter : public QWidget
{
    Q_OBJECT

public:
    explicit CatalogueFilter(QWidget* parent = nullptr);

    /// Writes what is chosen here into a wish, which keeps its order.
    void fill(CatalogueWish& wish) const;
    /// Whether it keeps programs from being shown.
    bool isFiltering() const;
    void showCount(std::size_t shown, std::size_t all);

    /// Lets the operator type what to search for.
    void focusSearch();

    /// What is chosen, without the words that are searched for.
    QByteArray saveState() const;
    /// False, and nothing changes, for what saveState() has not made.
    bool restoreState(const QByteArray& state);

signals:
    /// Something else is chosen.
    void changed();
    /// The operator has typed, and goes on to what was found.
    void done();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void retranslate();
    void tellCount();

    QLineEdit* m_search;
    QComboBox* m_kinds;
    QCheckBox* m_missing;
    QCheckBox* m_unused;
    QLabel* m_count;
    std::size_t m_shown = 0;
    std::size_t m_all = 0;
};

} // namespace trel::desktop
