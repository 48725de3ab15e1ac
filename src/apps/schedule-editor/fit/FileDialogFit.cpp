#include "fit/FileDialogFit.h"

#include <QDateTime>
#include <QFileDialog>
#include <QHeaderView>
#include <QLocale>
#include <QSplitter>
#include <QTreeView>

namespace trel::desktop::fit {

namespace {

constexpr QSize kSize(860, 520);
constexpr int kPlaces = 150;
constexpr int kLeastName = 200;
/// Around list and places, and between them.
constexpr int kAround = 48;
/// Beside a text in its cell.
constexpr int kBesideText = 20;

/// The columns of the toolkit's list of files.
enum Column { NameColumn, SizeColumn, TypeColumn, DateColumn };

/// As long as what stands in the column mostly is.
QString usualText(int column)
{
    switch (column) {
    case SizeColumn:
        return QStringLiteral("8888.88 MiB");
    case TypeColumn:
        return QStringLiteral("webm File…");
    case DateColumn:
        return QLocale::system().toString(QDateTime({2026, 12, 28}, {20, 58, 58}),
                                          QLocale::ShortFormat);
    default:
        return QString();
    }
}

} // namespace

void fitFileDialog(QFileDialog& dialog)
{
    auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    auto* const halves = dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
    if (list == nullptr || halves == nullptr) {
        return;
    }
    dialog.resize(kSize);
    halves->setSizes({kPlaces, kSize.width() - kPlaces - kAround});
    QHeaderView& titles = *list->header();
    int left = kSize.width() - kPlaces - kAround;
    for (const int column : {SizeColumn, TypeColumn, DateColumn}) {
        const int text = list->fontMetrics().horizontalAdvance(usualText(column));
        const int width = qMax(text + kBesideText, titles.sectionSizeHint(column));
        titles.resizeSection(column, width);
        left -= width;
    }
    titles.resizeSection(NameColumn, qMax(kLeastName, left));
}

} // namespace trel::desktop::fit
