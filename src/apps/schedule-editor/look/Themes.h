#pragma once

#include "EditorStyle.h"
#include "Recolouring.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class QApplication;

namespace trel::desktop {

/// The themes of the application: one of them is in force, and can be changed at any time.
class Themes : public QObject
{
    Q_OBJECT

public:
    /// Gives the application its style, its font and the default theme, and takes the effects of
    /// the toolkit away: nothing moves of itself.
    explicit Themes(QApplication& application);

    /// The names by which themes are chosen and remembered; the default comes first.
    static QStringList names();

    QString current() const { return m_current; }
    /// The colours of the theme in force.
    look::ThemeColours colours() const;

    /// Puts a theme in force, on the windows that are open and on those to come. What is out of
    /// sight follows when the event loop runs. A name that is not known chooses the default.
    void select(const QString& name);

signals:
    void changed();

private:
    void takeColours();

    QPointer<look::EditorStyle> m_style; // The application's, which may take another one.
    QString m_current;
    look::Recolouring m_recolouring;
};

} // namespace trel::desktop
