#include "documentpage.h"
#include "files.h"
#include "paths.h"
#include "testbase.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

/// Texts that the documentation quotes are the program's, names of controls are known to it, links lead somewhere, and
/// the project's files lie where the pages say.
class DocumentedTextsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void quotedTexts_data();
    void quotedTexts();
    void namesOfControls_data();
    void namesOfControls();
    void links_data();
    void links();
    void pathsInPassing_data();
    void pathsInPassing();
    void everyPictureIsShown();

private:
    /// Whether the program or its libraries contain exactly that text.
    bool isBuiltIn(const QString &text) const;

    QByteArray binaries;
    QSet<QString> translated; ///< Texts of the catalogues, in the language that they are written in.
};

namespace {

QStringList allPages()
{
    QStringList pages = DocumentPage::readersPages();
    for (const QString &page : QDir(sourcePath("docs")).entryList({QStringLiteral("*.md")}))
        pages.append(QStringLiteral("docs/") + page);
    pages.append(QStringLiteral("CONTRIBUTING.md"));
    pages.removeDuplicates();
    return pages;
}

/// All files and folders ("/docs/") of the project except hidden ones and what is built.
QStringList pathsOfProject()
{
    QStringList paths;
    const QString root = QDir::cleanPath(sourcePath(""));
    QDirIterator found(root, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        const QString path = found.next().mid(root.size());
        if (!path.startsWith(QLatin1String("/build/")))
            paths.append(found.fileInfo().isDir() ? path + QLatin1Char('/') : path);
    }
    return paths;
}

QSet<QString> textsOf(const QString &catalogue)
{
    QSet<QString> texts;
    for (QXmlStreamReader reader(readFile(catalogue)); !reader.atEnd(); reader.readNext()) {
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            texts.insert(reader.readElementText());
    }
    return texts;
}

/// What a page says in its own words, without code and the shapes of files.
QString prose(QString text)
{
    static const QRegularExpression code(QStringLiteral("^    .*$|`[^`\\n]*`"), QRegularExpression::MultilineOption);
    return text.remove(code);
}

QByteArray utf16(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}

} // namespace

void DocumentedTextsTest::initTestCase()
{
    for (const QString &path : QStringLiteral(RXMAP_BINARIES).split(QLatin1Char('|')))
        binaries += readFile(path);
    translated = textsOf(sourcePath("Simulator/Terminal/translations/terminal_de.ts"))
        + textsOf(sourcePath("Plugins/uiPluginRxMap/translations/uiPluginRxMap_de.ts"));
    QVERIFY(translated.size() > 50);
}

bool DocumentedTextsTest::isBuiltIn(const QString &text) const
{
    const QByteArray wide = QByteArray(2, '\0') + utf16(text) + QByteArray(2, '\0');
    const QByteArray narrow = '\0' + text.toUtf8() + '\0';
    return binaries.contains(wide) || binaries.contains(narrow);
}

void DocumentedTextsTest::quotedTexts_data()
{
    QTest::addColumn<QString>("text");
    QStringList pages = DocumentPage::readersPages();
    pages << QStringLiteral("docs/host.md") << QStringLiteral("docs/plugin-author.md");
    static const QRegularExpression quote(QStringLiteral("\"([^\"]+)\""));
    for (const QString &page : pages) {
        auto quotes = quote.globalMatch(prose(DocumentPage(page).text()));
        while (quotes.hasNext()) {
            const QString text = quotes.next().captured(1).simplified();
            QTest::newRow(qPrintable(page + QStringLiteral(": ") + text)) << text;
        }
    }
}

void DocumentedTextsTest::quotedTexts()
{
    QFETCH(QString, text);
    QVERIFY(translated.contains(text) || isBuiltIn(text));
}

void DocumentedTextsTest::namesOfControls_data()
{
    QTest::addColumn<QString>("name");
    const QString section = DocumentPage(QStringLiteral("docs/simulator.md")).section(QStringLiteral("Controls"));
    for (const QString &cell : DocumentPage::cells(section, 1)) {
        for (const QString &name : DocumentPage::code(cell))
            QTest::newRow(qPrintable(name)) << name;
    }
}

void DocumentedTextsTest::namesOfControls()
{
    QFETCH(QString, name);
    // Numbered names may have further parts: columnRow<n>Unit.
    const QString number = QStringLiteral("<n>");
    const int end = name.contains(number) ? name.indexOf(number) + number.size() : name.size();
    const QString part = name.mid(end);
    QVERIFY(isBuiltIn(name.left(end).replace(number, QStringLiteral("%1"))));
    QVERIFY(part.isEmpty() || isBuiltIn(part));
}

void DocumentedTextsTest::links_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : allPages())
        QTest::newRow(qPrintable(page)) << page;
}

void DocumentedTextsTest::links()
{
    QFETCH(QString, page);
    const DocumentPage document(page);
    QVERIFY(!document.text().isEmpty());
    const QString folder = QFileInfo(page).path() + QLatin1Char('/');
    for (const QString &link : document.links()) {
        const QString path = QDir::cleanPath(folder + link.section(QLatin1Char('#'), 0, 0));
        const QString target = link.startsWith(QLatin1Char('#')) ? page : path;
        QVERIFY2(QFileInfo::exists(sourcePath("") + target), qPrintable(link));
        const QString anchor = link.section(QLatin1Char('#'), 1);
        QVERIFY2(anchor.isEmpty() || DocumentPage(target).anchors().contains(anchor), qPrintable(link));
    }
}

void DocumentedTextsTest::pathsInPassing_data()
{
    links_data();
}

void DocumentedTextsTest::pathsInPassing()
{
    QFETCH(QString, page);
    // Leaves out what is built, and what a reader has elsewhere.
    static const QRegularExpression shape(
        QStringLiteral("^(?!build/)(?:\\./)?([\\w-][\\w./-]*(?:/|\\.(?:cpp|h|py|sh)))$"));
    static const QStringList paths = pathsOfProject();
    for (const QString &code : DocumentPage::code(DocumentPage(page).text())) {
        const QString path = shape.match(code).captured(1);
        const auto isThere = [&path](const QString &any) { return any.endsWith(QLatin1Char('/') + path); };
        QVERIFY2(path.isEmpty() || std::any_of(paths.begin(), paths.end(), isThere), qPrintable(code));
    }
}

void DocumentedTextsTest::everyPictureIsShown()
{
    QString texts;
    for (const QString &page : allPages())
        texts += DocumentPage(page).text();
    for (const QString &picture : QDir(sourcePath("docs/pictures")).entryList(QDir::Files))
        QVERIFY2(texts.contains(QStringLiteral("pictures/") + picture + QLatin1Char(')')), qPrintable(picture));
}

RXMAP_TEST(DocumentedTextsTest, None)
#include "tst_documentedtexts.moc"
