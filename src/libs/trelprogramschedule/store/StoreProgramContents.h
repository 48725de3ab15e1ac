#pragma once

#include "catalogue/ProgramContent.h"

namespace trel::mediadispatch {

class StoreConnection;

/// The table of what the files of programs held when they were read, within a transaction. Members
/// throw StoreError.
class StoreProgramContents
{
public:
    explicit StoreProgramContents(const StoreConnection& connection);

    /// What is known of the programs of the catalogue. Rows that are not in their form are passed
    /// over, as if they were not there.
    ProgramContents read() const;
    /// Puts contents into the place of what was known of these programs, whose rows have to be in
    /// the table of programs. Of those whose content is not known nothing is known from then on.
    void put(const ProgramContents& contents) const;

private:
    void remove(const ProgramContents& contents) const;

    const StoreConnection& m_connection;
};

} // namespace trel::mediadispatch
