#pragma once

#include <QStringList>

class QWidget;

/// What is wrong with the texts of a window in the made-up language.
class WindowTexts
{
public:
    /// Looks at a window with everything that is visible in it: what is shown, what comes up over
    /// it, and what is read out. Names in the findings begin with that of the window.
    void lookAt(const QWidget& window, const QString& name);

    /// Whether a part of a text that is no data stands outside the brackets.
    static bool hasUntranslated(const QString& text);

    /// How many texts have been looked at.
    int count() const { return m_count; }
    /// Those that stand outside the brackets, and so were not translated.
    QStringList untranslated() const { return m_untranslated; }
    /// Those that their widgets cut.
    QStringList cut() const { return m_cut; }

private:
    void lookAtWidget(const QWidget& widget);
    void expectTranslated(const QString& text);
    void expectWhole(const QWidget& widget);

    QString m_name;
    QString m_widget;
    int m_count = 0;
    QStringList m_untranslated;
    QStringList m_cut;
};
