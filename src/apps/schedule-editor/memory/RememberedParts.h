#pragma once

class QSettings;
class QWidget;

namespace trel::desktop {

/// The widths of the columns of a window's tables, and where the window is divided, from one start
/// of the program to the next. Each is remembered by the name of its widget; those without a name
/// are left out, and so is the catalogue, which remembers more of itself. A value that is damaged
/// is as good as none.
class RememberedParts
{
public:
    /// All parts stand in the window. Both outlive this.
    RememberedParts(QSettings& settings, QWidget& window);

    /// Gives them what is remembered, as far as there is any.
    void restore() const;
    /// Writes down what they are like.
    void save() const;

private:
    QSettings& m_settings;
    QWidget& m_window;
};

} // namespace trel::desktop
