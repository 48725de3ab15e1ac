#pragma once

#include <QTemporaryDir>
#include <QTranslator>

namespace trel::mediadispatch {
class scheduleControlUI;
}

/// A made-up language, which changes every English text in one way. By itself each is half as long
/// again and stands in brackets: a text that is seen without them was never translated; one that
/// does not fit would be cut in another language.
class PseudoLanguage : public QTranslator
{
    Q_OBJECT

public:
    using Change = QString (*)(const QString& text);

    static QString longer(const QString& text);

    /// Speaks it in the host and in the toolkit while it lives, and in the editor from then on.
    explicit PseudoLanguage(trel::mediadispatch::scheduleControlUI& editor,
                            Change change = &PseudoLanguage::longer);
    ~PseudoLanguage() override;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;

private:
    /// The editor's texts, made of its English ones.
    QString compileEditorTexts() const;

    const Change m_change;
    QTemporaryDir m_folder;
};
