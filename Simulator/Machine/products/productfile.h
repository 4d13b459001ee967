#pragma once

#include "machinesize.h"
#include "product.h"
#include "result.h"

#include <QCoreApplication>

/// A machine as a file describes it.
struct MachineSetup {
    MachineSize size;
    Products products;
    /// The products are placeholders until the first prescription is opened, which brings its own.
    bool takesProductsFromFile = false;
};

/// The machine as a JSON file: a list of products, or an object with a list "products" and optionally "width",
/// "antennaOffset", "minRadius" (metres) and "acceleration" (metres per second squared). A product is an object with
/// "name", "kind" (count, ratio, injection, volume, weight, pressure, unknown) and optionally "shortName", "bin" (from
/// 1; the product's own number), "defaultRate" (base units; 0), "underVra" (true), "isCarrier" (false), "deadTime",
/// "timeConstant" (seconds), "minRate" and "maxRate" (base units; these four as usual for the kind).
/// Keys are read without regard to case, blanks, hyphens and underscores.
class ProductFile {
    Q_DECLARE_TR_FUNCTIONS(ProductFile)

public:
    static constexpr int maxProducts = 16;
    /// Letters of a short name that is cut from a name.
    static constexpr int shortNameLength = 5;

    /// An error names the file and, where there is one, the product's number.
    static Result<MachineSetup> read(const QString &path);
    /// The same from the file's content; `name` stands for the file in errors.
    static Result<MachineSetup> parse(const QByteArray &json, const QString &name);
    /// The machine when no file describes one: seed, fertiliser and crop protection, named in the language chosen.
    static Products standard();
    static MachineSetup standardMachine() { return {{}, standard(), true}; }
    /// The letters of a product's name that stand for it where there is little room.
    static QString shortNameOf(const QString &name);
};
