#pragma once

#include <QObject>
#include <QStringList>
#include <QTranslator>

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop {

/// The languages of the editor and of the host around it, and the one in use.
///
/// The editor's texts come from one language file each, loaded at construction; the host's own
/// from the files "schedule-editor_*.qm" in the folder "host-languages" beside that one. What the
/// toolkit itself says, in file dialogs, on standard buttons and in the menus of fields, comes from
/// its own translations, as far as they are installed; otherwise it stays English.
class Languages : public QObject
{
    Q_OBJECT

public:
    /// Loads every language file of the folder into the editor.
    Languages(const QString& folder, trel::mediadispatch::scheduleControlUI& editor,
              QObject* parent = nullptr);

    /// Names such as "zh_CN", sorted.
    QStringList names() const { return m_names; }
    /// The language as its own speakers write it.
    static QString nativeName(const QString& name);
    /// The editor's own title in the language in use.
    static QString editorTitle();
    /// A text of the editor's, such as the label of a field, in the language in use.
    static QString editorText(const char* key);

    QString current() const { return m_current; }
    /// Switches editor, host, toolkit and the families of the application's font; a name that no
    /// file has leaves the language as it is.
    void select(const QString& name);

    /// The language to start in: the wanted one, else one of the operator's system, else English,
    /// else the first. The same language of another country will do where there is no better file.
    QString startLanguage(const QString& wanted) const;

signals:
    /// Editor and host stand in the new language.
    void changed();

private:
    /// The file for a language, of another country if need be; empty when there is none.
    QString bestMatch(const QString& candidate) const;

    QString m_folder;
    trel::mediadispatch::scheduleControlUI& m_editor;
    QStringList m_names;
    QString m_current;
    QTranslator m_toolkitTexts;
    QTranslator m_hostTexts;
};

} // namespace trel::desktop
