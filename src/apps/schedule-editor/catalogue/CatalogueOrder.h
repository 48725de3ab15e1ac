#pragma once

#include "catalogue/CatalogueRows.h"

#include <QLocale>
#include <QObject>

namespace trel::desktop {

/// Finds and sorts the programs of a catalogue as they are wished for: at once where that takes
/// less than a frame, and else in another thread, where a newer wish takes the place of an older
/// one.
class CatalogueOrder : public QObject
{
    Q_OBJECT

public:
    explicit CatalogueOrder(QObject* parent = nullptr);
    ~CatalogueOrder() override;

    /// Null is taken as empty.
    void setCatalogue(const follow::SharedCatalogue& catalogue);
    /// The language whose order texts stand in. Nothing happens where it is the same.
    void setLocale(const QLocale& locale);
    /// The words of the kinds may have changed.
    void setKindWords();
    void setWish(const CatalogueWish& wish);
    /// The programs that plans play, in ascending order; where they are the same, nothing happens.
    void setUsed(std::vector<int> used);

    const CatalogueWish& wish() const { return m_wish; }
    /// How many programs there are, found or not.
    std::size_t size() const { return m_catalogue->size(); }

signals:
    /// The programs that are wished for, of a catalogue that outlives the rows only while somebody
    /// holds it.
    void ordered(const follow::SharedCatalogue& catalogue, const ProgramRows& rows);

private:
    struct KeyStore;

    void order();

    follow::SharedCatalogue m_catalogue;
    QLocale m_locale;
    CatalogueWish m_wish;
    RowFacts m_facts;
    std::shared_ptr<KeyStore> m_store;
    follow::NewestWork m_work;
};

} // namespace trel::desktop
