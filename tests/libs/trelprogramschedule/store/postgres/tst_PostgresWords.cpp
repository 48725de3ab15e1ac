#include "store/postgres/PostgresWords.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

/// Statements for all engines in the words of one.
class tst_PostgresWords : public QObject
{
    Q_OBJECT

private slots:
    void statements_data();
    void statements();
    void namesAndTexts();
};

void tst_PostgresWords::statements_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* statement, const char* words) {
        QTest::newRow(statement) << QString::fromLatin1(statement) << QString::fromLatin1(words);
    };
    row("CREATE TABLE a (b INTEGER NOT NULL, c TEXT, d BLOB, e REAL) STRICT, WITHOUT ROWID",
        "CREATE TABLE a (b bigint NOT NULL, c bytea, d bytea, e double precision)");
    row("CREATE TABLE a (b INTEGER) STRICT", "CREATE TABLE a (b bigint)");
    row("ALTER TABLE a ADD COLUMN b INTEGER", "ALTER TABLE a ADD COLUMN b bigint");
    row("CREATE UNIQUE INDEX a ON program (media_path)",
        "CREATE UNIQUE INDEX a ON program (sha256(media_path))");
    row("INSERT INTO a VALUES (CAST(? AS TEXT), ?)", "INSERT INTO a VALUES (?, ?)");
    row("SELECT CAST(name AS BLOB), b FROM a", "SELECT name, b FROM a");
    row("SELECT a WHERE media_path = CAST(? AS TEXT)",
        "SELECT a WHERE sha256(media_path) = sha256(?)");
    row("CREATE SCHEMA \"a TEXT STRICT\"", "CREATE SCHEMA \"a TEXT STRICT\"");
    row("CREATE SCHEMA \"a\"\"'REAL\"", "CREATE SCHEMA \"a\"\"'REAL\"");
    row("CREATE TABLE \"BLOB\" (a TEXT DEFAULT ' \"BLOB', b BLOB) STRICT",
        "CREATE TABLE \"BLOB\" (a bytea DEFAULT ' \"BLOB', b bytea)");
    row("SELECT 'CAST(a AS TEXT)', CAST(b AS TEXT) FROM \"CAST(c AS BLOB)\"",
        "SELECT 'CAST(a AS TEXT)', b FROM \"CAST(c AS BLOB)\"");
    row("SELECT ' INTEGER STRICT'", "SELECT ' INTEGER STRICT'");
}

void tst_PostgresWords::statements()
{
    QFETCH(QString, statement);
    QFETCH(QString, words);
    QCOMPARE(postgresWords(statement), words);
}

void tst_PostgresWords::namesAndTexts()
{
    QCOMPARE(postgresName(QStringLiteral("a\"b'c")), QStringLiteral("\"a\"\"b'c\""));
    QCOMPARE(postgresText(QStringLiteral("a\"b'c")), QStringLiteral("'a\"b''c'"));
}

TREL_TEST(tst_PostgresWords, trel::tests::NoApplication)
#include "tst_PostgresWords.moc"
