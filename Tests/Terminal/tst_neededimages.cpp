#include "neededimages.h"
#include "paths.h"
#include "testbase.h"

#include <QTemporaryDir>

class TestNeededImages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyImageOfTheBuildIsNeeded();
    void theFirstImageThatFailsIsNamed();
};

void TestNeededImages::everyImageOfTheBuildIsNeeded()
{
    const QDir built(buildPath("Simulator/Resources/images"));
    QStringList needed = NeededImages::names();
    needed.sort();
    QStringList made = built.entryList({QStringLiteral("*.png")}, QDir::Files);
    made.sort();
    // Each image has a finer version.
    const QStringList finer = made.filter(QStringLiteral("@2x"));
    for (const QString &name : finer)
        made.removeAll(name);
    QCOMPARE(needed, made);
    QCOMPARE(QStringList(finer).replaceInStrings(QStringLiteral("@2x"), QString()), needed);
    QCOMPARE(NeededImages::problem(built), QString());
}

void TestNeededImages::theFirstImageThatFailsIsNamed()
{
    const QTemporaryDir folder;
    const QDir images(folder.path());
    const QStringList names = NeededImages::names();
    for (const QString &name : names) {
        const QString path = images.filePath(name);
        QCOMPARE(NeededImages::problem(images), path + QStringLiteral(": this image is missing"));
        QFile(path).open(QIODevice::WriteOnly);
        QCOMPARE(NeededImages::problem(images), path + QStringLiteral(": this image cannot be read"));
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::copy(buildPath("Simulator/Resources/images/") + name, path));
    }
    QCOMPARE(NeededImages::problem(images), QString());
}

RXMAP_TEST(TestNeededImages, Core)
#include "tst_neededimages.moc"
