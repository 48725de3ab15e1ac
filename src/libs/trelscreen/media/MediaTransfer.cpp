#include "MediaTransfer.h"

namespace trel::screen {

MediaTransfer::MediaTransfer(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<MediaTrouble>();
}

MediaTransfer::~MediaTransfer() = default;

} // namespace trel::screen
