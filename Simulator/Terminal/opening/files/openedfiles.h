#pragma once

#include "folderlisting.h"

#include <QCoreApplication>

class Machine;

/// The files that are open, each with what it feeds.
class OpenedFiles {
    Q_DECLARE_TR_FUNCTIONS(OpenedFiles)

public:
    /// The oldest first.
    static QList<FileEntry> of(const Machine &machine);
};
