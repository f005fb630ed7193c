#pragma once

#include <QString>

#include <optional>

// The camera makers whose maker-note fields the catalogue lists, by the exact "IFD0:Make" text
// their cameras write. The form shows a maker's fields and a save checks its maker notes by
// these names.
class CameraMakers
{
public:
    // The catalogue's maker name ("Nikon" for "NIKON CORPORATION"); nullopt for any other
    // make, letter case and blanks included.
    static std::optional<QString> makerOfMake(const QString &make);
    // The catalogue's name for makes it has no name for.
    static QString unknownMaker();
};
