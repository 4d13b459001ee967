#pragma once

#include "Backend/loadrequest.h"
#include "product.h"

#include <QList>
#include <QObject>

#include <functional>

class Machine;
struct LoadReport;

/// Decides which products a prescription is loaded for: the machine's, or those made from its columns, which the
/// machine then adopts. A product that stays the same keeps the default rate that the operator set.
class ProductAdoption : public QObject {
    Q_OBJECT

public:
    /// The machine keeps its products. It is not owned and outlives the adoption.
    explicit ProductAdoption(Machine *machine, QObject *parent = nullptr);

    /// The machine's products are placeholders for those of the next prescription loaded. From then on files that an
    /// operator previews may bring theirs.
    void adoptFromNextFile();
    /// If a map is loaded, the next prescription brings no products any more.
    void endWithMapLoaded();
    /// While `condition` holds, previewed files bring no products.
    void keepProductsWhile(const std::function<bool()> &condition) { keepsProducts = condition; }

    /// Enters the products that a prescription is to be loaded for.
    void fillRequest(LoadRequest &request) const;
    /// The same for an operator who sees the result beforehand: here a file that takes over all products in use on its
    /// plane brings its own, as the first one did.
    void fillRequestForPreview(LoadRequest &request) const;
    /// The products for a surveyed file: made from its columns, or the machine's if `columns` is empty.
    QList<MachineProduct> productsFor(const QList<ColumnProduct> &columns) const;

private:
    enum class Source { Machine, NextFile, PreviewedFiles };
    using ProductMaker = std::function<QList<MachineProduct>(const QList<ColumnProduct> &)>;

    /// Makes products from a file's columns, see LoadRequest.
    ProductMaker maker() const;
    void adopt(const QList<ColumnProduct> &columns);
    /// The default rates that a file gave are now in use, not ones that the operator set.
    void noteGivenRates(const LoadReport &report);

    Machine *machine;
    Source source = Source::Machine;
    std::function<bool()> keepsProducts;
    /// The machine's, with the default rates that they were made with or that a file gave since.
    Products given;
};
