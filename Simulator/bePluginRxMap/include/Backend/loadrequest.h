#pragma once

#include "Backend/columnproduct.h"
#include "Backend/machineproduct.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// What to load, and for whom.
struct LoadRequest {
    /// A file in one of the formats read, or a folder of task data.
    QString path;
    /// Rate columns; entry i feeds products[i]. An empty entry leaves that product out. An empty list lets the
    /// back-end choose the most likely columns.
    QStringList columns;
    /// Units of the columns that feed products[i] ("lb/ac"); empty and missing ones are left to the file.
    QStringList units;
    /// All products of the machine, in product order.
    QList<MachineProduct> products;
    /// Which one of the file's layers, or of its tasks; empty: the first that will do.
    QString layer;
    QString task;
    /// Makes products from what the file's columns say; empty when the machine does not take its products from the
    /// file. They replace `products` if the file's columns, unasked, feed all of those in use on the map's plane, or if
    /// `columnProducts` is given; the report then says what they were made from. It is called in the loading thread.
    std::function<QList<MachineProduct>(const QList<ColumnProduct> &)> makeProducts = {};
    /// What the columns said when the operator chose among them; empty: the load asks the columns itself.
    QList<ColumnProduct> columnProducts = {};
    /// Groups of the maps that are closed once this one is loaded; no warning says how far it lies from them.
    QStringList replacedGroups = {};
    /// The operator picked the columns from those that the file offers; the load still reports which of them are
    /// guesses.
    bool tellsGuesses = false;
};
