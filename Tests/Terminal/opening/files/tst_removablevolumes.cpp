#include "files.h"
#include "removablevolumes.h"
#include "testbase.h"

#include <QTemporaryDir>

/// Which of the mounted file systems are sticks and cards.
class TestRemovableVolumes : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void areThoseThatTheDesktopMounts();
    void areNoneWithoutATable();
};

void TestRemovableVolumes::areThoseThatTheDesktopMounts()
{
    const QTemporaryDir folder;
    const QString table = folder.filePath(QStringLiteral("mounts"));
    writeFile(table,
              "/dev/sda1 / ext4 rw,relatime 0 0\n"
              "/dev/sdb1 /media/operator/STICK vfat rw 0 0\n"
              "server:/maps /mnt/maps nfs4 rw 0 0\n"
              "/dev/sdc1 /mnt/media/old vfat rw 0 0\n"
              "/dev/sdd1 /run/media/operator/My\\040card\\040\xc3\xbc vfat rw 0 0\n");
    QCOMPARE(
        RemovableVolumes::mounted(table),
        QStringList({QStringLiteral("/media/operator/STICK"), QStringLiteral("/run/media/operator/My card \u00fc")}));
}

void TestRemovableVolumes::areNoneWithoutATable()
{
    QCOMPARE(RemovableVolumes::mounted(QStringLiteral("/no/such/table")), QStringList());
}

RXMAP_TEST(TestRemovableVolumes, None)
#include "tst_removablevolumes.moc"
