#pragma once

#include <QDir>
#include <QStringList>

/// The user-interface languages: English is built in, the others are catalogues (*_<code>.qm) in the plug-ins' folder
/// or its folder "translations", and the display's own, which the program carries.
class Languages {
public:
    /// Loads every catalogue of that language ("de", "pt_BR", "pt-br") for the life of the application, and has numbers
    /// shown as that language writes them (QLocale's default). Empty, or the reason when there is none.
    static QString install(const QString &code, const QDir &pluginFolder);
    /// The reason when there is no catalogue of that language; nothing is loaded.
    static QString problem(const QString &code, const QDir &pluginFolder);
    /// The code of the first language of `wanted` ("de-AT", "pt", as QLocale names them) that the display and the
    /// plug-ins speak, of another country if need be; English where they speak none.
    static QString suiting(const QStringList &wanted, const QDir &pluginFolder);
};
