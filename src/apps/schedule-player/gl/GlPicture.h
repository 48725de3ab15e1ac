#pragma once

#include <QSize>

#include <memory>
#include <mutex>
#include <vector>

namespace trel::player {

/// Textures that no longer show anywhere, until a thread with a context of their group comes by.
class GlTrash
{
public:
    void throwAway(unsigned int texture);
    /// Deletes what is there. A context of the group has to be current.
    void empty();

private:
    std::mutex m_mutex;
    std::vector<unsigned int> m_textures;
};

/// A picture that OpenGL has drawn, complete: its texture in the group of the window's context. For
/// any thread.
class GlPicture
{
public:
    GlPicture(unsigned int texture, const QSize& size, std::shared_ptr<GlTrash> trash);
    ~GlPicture();
    GlPicture(const GlPicture&) = delete;
    GlPicture& operator=(const GlPicture&) = delete;

    unsigned int texture() const { return m_texture; }
    QSize size() const { return m_size; }
    /// By how much it still has to be turned clockwise, in degrees.
    int turned() const { return m_turned; }
    /// For the thread that draws it, before others see it.
    void setTurned(int degrees) { m_turned = degrees; }

private:
    const unsigned int m_texture;
    const QSize m_size;
    int m_turned = 0;
    const std::shared_ptr<GlTrash> m_trash;
};

using SharedGlPicture = std::shared_ptr<GlPicture>;

} // namespace trel::player
