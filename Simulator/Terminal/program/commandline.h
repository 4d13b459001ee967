#pragma once

#include "result.h"
#include "theme.h"
#include "unitsystem.h"

#include <QPointF>
#include <QString>
#include <QStringList>

#include <optional>

/// What the program was asked to do.
struct CommandLine {
    QStringList prescriptions;
    /// Rate columns of products 1, 2, ...; empty: the most likely ones.
    QStringList columns;
    /// Units of the columns that feed products 1, 2, ...; an empty one is left to the file.
    QStringList sourceUnits;
    /// Which layer and which task of the prescriptions; empty: the first that will do.
    QString layer;
    QString task;
    /// The open window shows the prescriptions, or files to choose from, before anything is opened.
    bool open = false;
    QString productFile;
    UnitSystem units = UnitSystem::Metric;
    QString language;
    /// How the terminal looks; nothing where it is left to the desktop.
    std::optional<Theme::Kind> theme;
    QString pluginDir;
    /// A point of the local plane, metres.
    std::optional<QPointF> describe;
    /// A place on the earth, degrees of longitude and latitude.
    std::optional<QPointF> at;
    QString screenshot;
    QString script;
    /// Report of a drive over the whole field; empty: none.
    QString drive;
    /// Record of that drive.
    QString record;
    /// The drive also looks for the best look-ahead times.
    bool tune = false;
    /// The prescriptions are checked, not shown.
    bool check = false;
    /// What the check finds is written as JSON.
    bool json = false;
    bool wantsHelp = false;

    /// Whether the operator uses the display, rather than a task that ends by itself.
    bool isInteractive() const;
    /// Whether the answer goes to standard output, not only to a file or the display.
    bool printsAnswer() const;

    /// `arguments` begin with the program's name.
    static Result<CommandLine> parse(const QStringList &arguments);
    static QString helpText();
};
