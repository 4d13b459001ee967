#pragma once

#include "Backend/columnproduct.h"
#include "Backend/machineproduct.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// What to load, and for whom.
struct LoadRequest {
    /// A file of one of the formats that are read, or a folder of task data.
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
    /// Where the machine takes its products from the file: makes them from what the columns say, and `products` do not
    /// count but for those in use on the map's plane: products are made only where the file's columns, unasked, feed
    /// all of these. It is called in the loading thread. The report says from what they were made.
    std::function<QList<MachineProduct>(const QList<ColumnProduct> &)> makeProducts = {};
    /// What the columns said when the operator chose among them; empty: what they say to the load.
    QList<ColumnProduct> columnProducts = {};
    /// Groups of the maps that are closed once this one is loaded: how far it lies from them is not told.
    QStringList replacedGroups = {};
    /// The columns were picked from what the file was seen to offer: one that is a guess is told to be one.
    bool tellsGuesses = false;
};
