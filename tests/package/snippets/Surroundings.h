#pragma once

// What the snippets take for granted of the host that they stand in.

#include <QApplication>
#include <QDebug>
#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

namespace trel::mediadispatch {}
using namespace trel::mediadispatch;

class Player : public QObject
{
public:
    void play(int /*program*/, qint64 /*position*/) {}
    void prepare(int /*program*/) {}
    void showBlack() {}
};

inline Player player;
inline const QString path;
inline const std::vector<QString> files;
