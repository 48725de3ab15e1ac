#pragma once

#include "trelprogramschedule/catalogue/ProgramContent.h"

#include <QMetaType>
#include <QObject>
#include <QString>

namespace trel::screen {

/// Why a file could not be fetched.
enum class MediaTrouble {
    None,
    NotThere,     ///< Where it is fetched from there is no such file.
    Broken,       ///< The way there is, or was cut; what came stays.
    OtherContent, ///< What came is not what it should be.
    NoRoom,       ///< The limit leaves no room for it, or the disk is full.
    NotWritable,  ///< The disk of the screen does not take it.
};

/// Fetches a file from somewhere, one at a time, behind what has come of it before. What came is
/// not looked at. Belongs to one thread, whose event loop it needs.
class MediaTransfer : public QObject
{
    Q_OBJECT

public:
    explicit MediaTransfer(QObject* parent = nullptr);
    ~MediaTransfer() override;

    /// Fetches what is missing of a file into a file that has its beginning, or is not there. Then
    /// comes ended, unless it is stopped before.
    virtual void start(const mediadispatch::ProgramContent& content, const QString& part) = 0;
    /// What came stays. Nothing happens where nothing is fetched.
    virtual void stop() = 0;

signals:
    /// All of it has come, or why not; what is known of that besides, in the words of the system or
    /// the toolkit.
    void ended(trel::screen::MediaTrouble trouble, const QString& words);
};

} // namespace trel::screen

Q_DECLARE_METATYPE(trel::screen::MediaTrouble)
