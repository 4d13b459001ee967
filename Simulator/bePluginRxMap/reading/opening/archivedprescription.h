#pragma once

#include "ziparchive.h"

class QDir;

/// Which file of an archive is the prescription, and its unpacking.
class ArchivedPrescription {
public:
    /// `inner`: a file or a folder of the archive; empty where the archive holds one prescription.
    ArchivedPrescription(const QString &archive, const QString &inner);

    /// Unpacks the prescription, with the files that belong to it, into an empty folder; its path there. Empty, with
    /// the reason in error(), when that cannot be done.
    QString unpack(const QDir &folder);
    QString error() const { return reason; }
    /// If the archive holds several prescriptions and none is named: their paths in the archive.
    QStringList candidates() const { return several; }

private:
    bool fail(const QString &text);
    const ZipArchive::Entry *choose();
    /// Whether an entry may be the prescription.
    bool isCandidate(const ZipArchive::Entry &entry) const;
    /// In a .kmz, keeps only the document at its root, unless that merely links to the others.
    void keepDocument(std::vector<const ZipArchive::Entry *> &found);
    /// The entry and the entries that belong to it.
    std::vector<const ZipArchive::Entry *> withParts(const ZipArchive::Entry &main) const;
    bool write(const ZipArchive::Entry &entry, const QString &path);

    QString archivePath;
    ZipArchive archive;
    bool isKmz;
    QString inner;
    QString reason;
    QStringList several;
};
