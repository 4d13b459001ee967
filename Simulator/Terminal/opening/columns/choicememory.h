#pragma once

#include "filechoices.h"

#include <optional>

class QSettings;

/// Keeps what the operator chose for each file, the newest first, beyond the end of the program.
class ChoiceMemory {
public:
    /// Choices are kept for this many files; those for older ones are forgotten.
    static constexpr int mostFiles = 50;

    /// `settings` is not owned and outlives this.
    explicit ChoiceMemory(QSettings &settings);

    /// Nothing for a file without kept choices.
    std::optional<FileChoices> of(const QString &path) const;
    void keep(const QString &path, const FileChoices &choices);

private:
    QSettings &settings;
};
