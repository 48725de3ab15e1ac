#include "HostFixture.h"
#include "catalogue/CatalogueOrder.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <algorithm>
#include <ctime>
#include <functional>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

constexpr int kPrograms = 20000;
/// Over a view without more in it than the same texts.
constexpr double kMost = 2.0;

/// What a piece of work costs this process, all of its threads, in seconds.
///
/// Not the time on the wall: what else a busy machine does would count, and by itself doubles it.
double cost(const std::function<void()>& work)
{
    const std::clock_t began = std::clock();
    work();
    return static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC;
}

/// A table of the toolkit that shows what another one shows, and searches and sorts by its own
/// means.
class BareView : public QTableView
{
public:
    explicit BareView(const QTableView& other)
    {
        const QAbstractItemModel& model = *other.model();
        m_items.setColumnCount(model.columnCount());
        for (int row = 0; row < model.rowCount(); ++row) {
            QList<QStandardItem*> cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells.append(new QStandardItem(model.index(row, column).data().toString()));
            }
            m_items.appendRow(cells);
        }
        m_proxy.setSourceModel(&m_items);
        m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        m_proxy.setFilterKeyColumn(-1);
        m_proxy.setSortLocaleAware(true);
        setModel(&m_proxy);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setAlternatingRowColors(true);
        setShowGrid(false);
        setWordWrap(false);
        verticalHeader()->hide();
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        verticalHeader()->setDefaultSectionSize(other.verticalHeader()->defaultSectionSize());
        for (int column = 0; column < model.columnCount(); ++column) {
            setColumnWidth(column, other.columnWidth(column));
        }
        resize(other.size());
    }

    QSortFilterProxyModel& proxy() { return m_proxy; }

private:
    QStandardItemModel m_items;
    QSortFilterProxyModel m_proxy;
};

void scroll(QTableView& table)
{
    QScrollBar& bar = *table.verticalScrollBar();
    for (int step = 0; step <= 60; ++step) {
        bar.setValue(bar.maximum() * step / 60);
        QCoreApplication::processEvents();
        table.viewport()->repaint();
    }
}

} // namespace

/// The catalogue with twenty thousand programs, beside a bare view of the same.
class tst_CatalogueLarge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void typing();
    void sorting();
    void scrolling();

private:
    QTableView& table() const
    {
        return *m_fixture->window.findChild<QTableView*>(QStringLiteral("programTable"));
    }
    /// Does something, and goes on until the rows have followed.
    void andWait(const std::function<void()>& deed) const
    {
        bool ordered = false;
        const auto connection =
            connect(m_fixture->window.findChild<CatalogueOrder*>(), &CatalogueOrder::ordered, this,
                    [&ordered] { ordered = true; });
        deed();
        while (!ordered) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        disconnect(connection);
        table().viewport()->repaint();
    }
    /// In turns, and the least of five each, so that a slow moment meets both.
    static void compare(const char* what, const std::function<void()>& own,
                        const std::function<void()>& bare)
    {
        double leastOwn = cost(own);
        double leastBare = cost(bare);
        for (int turn = 1; turn < 5; ++turn) {
            leastOwn = std::min(leastOwn, cost(own));
            leastBare = std::min(leastBare, cost(bare));
        }
        qInfo("%s: %.1f ms, bare %.1f ms", what, leastOwn * 1000.0, leastBare * 1000.0);
        QVERIFY2(leastOwn <= kMost * leastBare, what);
    }

    std::unique_ptr<HostFixture> m_fixture;
    std::unique_ptr<BareView> m_bare;
};

void tst_CatalogueLarge::initTestCase()
{
    m_fixture = std::make_unique<HostFixture>();
    QCOMPARE(m_fixture->window.openDatabase(m_fixture->database), QString());
    std::vector<MediaSource> sources;
    for (int i = 0; i < kPrograms; ++i) {
        sources.push_back({QStringLiteral("Programme %1").arg(i * 7919 % kPrograms),
                           QStringLiteral("rtsp://server%1/feed/%2").arg(i % 17).arg(i), 0.0,
                           ProgramKind::Live});
    }
    QVERIFY(m_fixture->host.addPrograms(sources).store);
    m_fixture->window.resize(1366, 768);
    m_fixture->window.show();
    QTRY_COMPARE(table().model()->rowCount(), kPrograms);
    m_bare = std::make_unique<BareView>(table());
    m_bare->show();
    QCoreApplication::processEvents();
}

void tst_CatalogueLarge::cleanupTestCase()
{
    m_bare.reset();
    m_fixture.reset();
}

void tst_CatalogueLarge::typing()
{
    const QString text = QStringLiteral("programme 199");
    auto* search = m_fixture->window.findChild<QLineEdit*>(QStringLiteral("programSearch"));
    const auto own = [&] {
        for (int length = 1; length <= text.size(); ++length) {
            andWait([&] { search->setText(text.left(length)); });
        }
        andWait([&] { search->clear(); });
    };
    const auto bare = [&] {
        for (int length = 1; length <= text.size(); ++length) {
            m_bare->proxy().setFilterFixedString(text.left(length));
            QCoreApplication::processEvents();
            m_bare->viewport()->repaint();
        }
        m_bare->proxy().setFilterFixedString(QString());
        QCoreApplication::processEvents();
        m_bare->viewport()->repaint();
    };
    compare("typing", own, bare);
}

void tst_CatalogueLarge::sorting()
{
    QHeaderView& header = *table().horizontalHeader();
    const auto orders = {Qt::AscendingOrder, Qt::DescendingOrder};
    const auto own = [&] {
        for (const Qt::SortOrder order : orders) {
            andWait([&] { header.setSortIndicator(0, order); });
        }
    };
    const auto bare = [&] {
        for (const Qt::SortOrder order : orders) {
            m_bare->proxy().sort(0, order);
            QCoreApplication::processEvents();
            m_bare->viewport()->repaint();
        }
    };
    compare("sorting", own, bare);
}

void tst_CatalogueLarge::scrolling()
{
    compare(
        "scrolling", [this] { scroll(table()); }, [this] { scroll(*m_bare); });
}

TREL_TEST(tst_CatalogueLarge, QApplication)
#include "tst_CatalogueLarge.moc"
