#include "MirrorSource.h"

#include "StoreNotices.h"
#include "store/StoreAttempt.h"
#include "store/StoreEngines.h"
#include "store/StoreMirror.h"

#include <chrono>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// A server that is slower than this is tried again.
constexpr std::chrono::seconds kPatience{10};

bool isSame(const StoreResult& one, const StoreResult& other)
{
    return one.problem == other.problem && one.cause.code == other.cause.code &&
           one.cause.arguments == other.cause.arguments;
}

} // namespace

MirrorSource::MirrorSource(QString address)
    : m_address(std::move(address))
{
    qRegisterMetaType<MirrorNewsPointer>();
    qRegisterMetaType<MirrorState>();
    qRegisterMetaType<StoreResult>();
}

MirrorSource::~MirrorSource() = default;

void MirrorSource::begin(const MirrorState& mirror)
{
    m_mirror = mirror;
    m_notices = std::make_unique<StoreNotices>(
        [this] { return look(); },
        [this] { return m_engine != nullptr && m_engine->connection()->isConnected(); });
    m_notices->begin();
}

void MirrorSource::end()
{
    m_engine.reset();
    m_notices.reset();
}

void MirrorSource::restart(const MirrorState& mirror)
{
    m_mirror = mirror;
    if (m_notices) {
        m_notices->refuse();
    }
}

bool MirrorSource::look()
{
    MirrorNews news;
    const StoreResult result = read(news);
    note(result);
    if (!result) {
        return false;
    }
    if (news.to != m_mirror) {
        m_mirror = news.to;
        emit told(std::make_shared<const MirrorNews>(std::move(news)));
    }
    return true;
}

StoreResult MirrorSource::read(MirrorNews& news)
{
    const bool isOpen = m_engine != nullptr;
    StoreResult result = isOpen ? StoreResult() : open();
    if (result) {
        result = readOnce(news);
    }
    const bool isAnother = result && isOpen && news.to.identity != m_identity;
    if (isAnother || (!result && m_engine != nullptr && m_engine->connection()->isConnected())) {
        // What the server refuses, or has in the place of what was looked at, is looked at anew.
        // A connection that has gone is made again by the next look.
        m_engine.reset();
    }
    if (isAnother) {
        return read(news);
    }
    if (result) {
        m_identity = news.to.identity;
    }
    return result;
}

StoreResult MirrorSource::open()
{
    std::unique_ptr<StoreEngine> engine;
    StoreResult result = attempt(m_address, [&] {
        engine = engineFor(
            m_address, StoreOpenMode::ReadOnly, [](const StoreConnection&) {}, kPatience);
    });
    if (result) {
        result = engine->open();
    }
    if (result) {
        // Before the first reading, so that nothing can be missed in between.
        result = attempt(engine->path(), [&] {
            engine->connection()->listen([notices = m_notices.get()] { notices->hear(); });
        });
    }
    if (result) {
        m_engine = std::move(engine);
    }
    return result;
}

StoreResult MirrorSource::readOnce(MirrorNews& news) const
{
    return m_engine->read(
        [&] { news = StoreMirror(*m_engine->connection(), m_engine->path()).newsFor(m_mirror); });
}

void MirrorSource::note(const StoreResult& result)
{
    if (result) {
        if (std::exchange(m_loss, std::nullopt)) {
            emit found();
        }
    } else if (!m_loss || !isSame(*m_loss, result)) {
        m_loss = result;
        emit lost(result);
    }
}

} // namespace trel::mediadispatch
