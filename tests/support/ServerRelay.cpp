#include "ServerRelay.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::chrono::minutes kPatience{1};

sockaddr_in loopback(int port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<quint16>(port));
    return address;
}

bool sendAll(int socket, const char* bytes, ssize_t size)
{
    while (size > 0) {
        const ssize_t sent = ::send(socket, bytes, static_cast<std::size_t>(size), MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes += sent;
        size -= sent;
    }
    return true;
}

} // namespace

ServerRelay::ServerRelay(int server)
    : m_server(server)
    , m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    constexpr int backlog = 8;
    if (::pipe(m_pipe) == 0 && ::bind(m_listener, plain, size) == 0 &&
        ::listen(m_listener, backlog) == 0 && ::getsockname(m_listener, plain, &size) == 0) {
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { run(); });
    }
}

ServerRelay::~ServerRelay()
{
    if (m_thread.joinable()) {
        {
            const std::lock_guard lock(m_mutex);
            m_isLeaving = true;
        }
        wake();
        m_thread.join();
    }
    std::for_each(m_lines.begin(), m_lines.end(), close);
    for (const int handle : {m_listener, m_pipe[0], m_pipe[1]}) {
        ::close(handle);
    }
}

void ServerRelay::holdAt(const QByteArray& words)
{
    const std::lock_guard lock(m_mutex);
    m_words = words;
}

bool ServerRelay::waitUntilHeld()
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, kPatience, [this] { return m_isHeld; });
}

int ServerRelay::lines() const
{
    const std::lock_guard lock(m_mutex);
    return m_accepted;
}

int ServerRelay::pieces() const
{
    const std::lock_guard lock(m_mutex);
    return m_pieces;
}

bool ServerRelay::hasSeen(const QByteArray& words) const
{
    const std::lock_guard lock(m_mutex);
    return m_sent.contains(words);
}

void ServerRelay::cut()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isCut = true;
    }
    wake();
}

void ServerRelay::wake() const
{
    const char byte = 0;
    if (::write(m_pipe[1], &byte, 1) != 1) {
        qWarning("The relay cannot be woken.");
    }
}

void ServerRelay::run()
{
    for (;;) {
        std::vector<pollfd> watched = {{m_pipe[0], POLLIN, 0}, {m_listener, POLLIN, 0}};
        for (const Line& line : m_lines) {
            // A negative number is passed over.
            watched.push_back({line.isHeld ? -1 : line.client, POLLIN, 0});
            watched.push_back({line.server, POLLIN, 0});
        }
        ::poll(watched.data(), watched.size(), -1);
        const std::lock_guard lock(m_mutex);
        if (watched[0].revents != 0) {
            char byte = 0;
            if (::read(m_pipe[0], &byte, 1) != 1 || m_isLeaving) {
                return;
            }
        }
        if (std::exchange(m_isCut, false)) {
            std::for_each(m_lines.begin(), m_lines.end(), close);
            m_lines.clear();
            continue;
        }
        std::vector<Line> lines;
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            Line line = m_lines[i];
            const bool isClientReady = watched[2 * i + 2].revents != 0;
            const bool isServerReady = watched[2 * i + 3].revents != 0;
            if ((isClientReady && !pass(line, true)) || (isServerReady && !pass(line, false))) {
                close(line);
            } else {
                lines.push_back(line);
            }
        }
        m_lines = std::move(lines);
        if (watched[1].revents != 0) {
            accept();
        }
    }
}

void ServerRelay::accept()
{
    ++m_accepted;
    Line line;
    line.client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    line.server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = loopback(m_server);
    if (::connect(line.server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        m_lines.push_back(line);
    } else {
        close(line);
    }
}

bool ServerRelay::pass(Line& line, bool isToServer)
{
    std::array<char, 65536> bytes = {};
    const ssize_t size =
        ::recv(isToServer ? line.client : line.server, bytes.data(), bytes.size(), 0);
    if (size <= 0) {
        // One who is kept waiting does not hear that the server has gone.
        if (line.isHeld && !isToServer) {
            ::close(std::exchange(line.server, -1));
            return true;
        }
        return false;
    }
    if (isToServer) {
        const auto piece = QByteArray::fromRawData(bytes.data(), static_cast<int>(size));
        ++m_pieces;
        m_sent += piece;
        if (!m_words.isEmpty() && piece.contains(m_words)) {
            m_words.clear();
            line.isHeld = true;
            m_isHeld = true;
            m_changed.notify_all();
            return true;
        }
    }
    return sendAll(isToServer ? line.server : line.client, bytes.data(), size);
}

void ServerRelay::close(const Line& line)
{
    for (const int handle : {line.client, line.server}) {
        if (handle >= 0) {
            ::close(handle);
        }
    }
}
