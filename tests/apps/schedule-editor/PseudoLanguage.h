#pragma once

#include <QTemporaryDir>
#include <QTranslator>

namespace trel::mediadispatch {
class scheduleControlUI;
}

/// A made-up language: every text is half as long again and stands in brackets. A text that is seen
/// without them was never translated; one that does not fit would be cut in another language.
class PseudoLanguage : public QTranslator
{
    Q_OBJECT

public:
    /// Speaks it in the host and in the toolkit while it lives, and in the editor from then on.
    explicit PseudoLanguage(trel::mediadispatch::scheduleControlUI& editor);
    ~PseudoLanguage() override;

    static QString longer(const QString& text);

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;

private:
    /// The editor's texts, made of its English ones.
    QString compileEditorTexts() const;

    QTemporaryDir m_folder;
};
