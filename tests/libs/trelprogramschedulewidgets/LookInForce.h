#pragma once

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QString>
#include <QStyleFactory>
#include <QWidget>

/// All that a host can set of a look, before the editor is made or while it is open.
struct Look
{
    QString style = QStringLiteral("Fusion");
    QPalette palette = QApplication::palette();
    QFont font = QApplication::font();
    QString sheet;
    // Of the dialog alone.
    QString ownSheet;
    QPalette ownPalette;
    QFont ownFont;

    void put() const
    {
        QApplication::setStyle(QStyleFactory::create(style));
        QApplication::setPalette(palette);
        QApplication::setFont(font);
        qApp->setStyleSheet(sheet);
    }
    void putOn(QWidget& dialog) const
    {
        dialog.setStyleSheet(ownSheet);
        dialog.setPalette(ownPalette);
        dialog.setFont(ownFont);
    }
};

/// Puts the look of the application back at the end of its life.
class FormerLook
{
public:
    FormerLook() = default;
    ~FormerLook() { m_look.put(); }
    Q_DISABLE_COPY(FormerLook)

    const Look& look() const { return m_look; }

private:
    Look m_look;
};
