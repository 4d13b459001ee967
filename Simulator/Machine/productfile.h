#pragma once

#include "product.h"
#include "result.h"

/// The machine's products as a JSON file: a list (or an object with a list "products") of objects with "name", "kind"
/// (count, ratio, injection, volume, weight, pressure, unknown) and optionally "shortName", "bin" (from 1; the
/// product's own number), "defaultRate" (base units; 0), "underVra" (true) and "isCarrier" (false).
/// Keys are read without regard to case, blanks, hyphens and underscores.
class ProductFile {
public:
    static constexpr int maxProducts = 16;

    /// An error names the file and, where there is one, the product's number.
    static Result<Products> read(const QString &path);
    /// The same from the file's content; `name` stands for the file in errors.
    static Result<Products> parse(const QByteArray &json, const QString &name);
    /// The machine when no file describes one: seed, fertiliser and crop protection.
    static Products standard();
};
