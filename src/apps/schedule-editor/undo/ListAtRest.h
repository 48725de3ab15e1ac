#pragma once

#include <QPointer>
#include <QWidget>

#include <cstddef>

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop::undo {

/// Keeps the list of the editor out of sight while many of its cards are built anew, in one turn of
/// the event loop: in sight, all cards would be laid out again for each of them. To be made before
/// the working set is edited, as a field that loses its focus files what was typed. The toolkit
/// gives the focus back.
class ListAtRest
{
public:
    /// So many tasks are going to be shown. The editor may go meanwhile.
    ListAtRest(mediadispatch::scheduleControlUI& editor, std::size_t tasks);
    ~ListAtRest();
    Q_DISABLE_COPY(ListAtRest)

private:
    QPointer<QWidget> m_list; ///< Null where the list stays in sight.
};

} // namespace trel::desktop::undo
