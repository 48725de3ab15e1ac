#include "StoreElements.h"

#include "StoreConnection.h"
#include "StoreRefusals.h"

namespace trel::mediadispatch {

namespace {

/// What a message shows of a name that somebody else has chosen.
constexpr int kLongestName = 60;

Fault partFault(FaultCode code, const std::pair<QString, QString>& element)
{
    return faultOf(code, element.second.left(kLongestName), element.first);
}

} // namespace

void StoreElements::add(const QString& kind, const QString& name, const QString& table,
                        const QString& definition)
{
    m_elements.insert({{kind, name}, {table, definition}});
}

void StoreElements::check(const StoreElements& expected, const QString& path) const
{
    for (const auto& [name, definition] : expected.m_elements) {
        if (m_elements.count(name) == 0) {
            throw StoreError{
                refusal(StoreProblem::Damaged, path, partFault(FaultCode::PartMissing, name))};
        }
    }
    for (const auto& [name, definition] : m_elements) {
        const auto own = expected.m_elements.find(name);
        if (own == expected.m_elements.end()) {
            throw StoreError{
                refusal(StoreProblem::Altered, path, partFault(FaultCode::PartUnknown, name))};
        }
        if (own->second != definition) {
            throw StoreError{
                refusal(StoreProblem::Altered, path, partFault(FaultCode::PartAltered, name))};
        }
    }
}

} // namespace trel::mediadispatch
