#pragma once

#include <QString>
#include <QtGlobal>

// The numbers are stored and compared (the number formatter picks its bounds by them): keep them.
enum class FieldDataType : qint32 {
    Unknown = 0,
    String = 1,
    Int8 = 2,
    UInt8 = 3,
    Int16 = 4,
    UInt16 = 5,
    Int32 = 6,
    UInt32 = 7,
    Float = 8,
    Double = 9,
    UDouble = 10,
    Binary = 11,
    Enum = 12,
    RdfBag = 13,
    // An XMP text with a value per language; the plain tag is its default language.
    LangAlt = 14,
};

enum class FieldDataRepresentation : qint32 {
    None = 0,
    Number = 1,
    Date = 2,
    DateTime = 3,
    Enum = 4,
    MultiEnum = 5,
    Fraction = 6,
    Longitude = 7,
    Latitude = 8,
    Strings = 9,
    // An XMP structure or a list of them, held in ExifTool's serialized form.
    Structure = 10,
};

// Exact, case-sensitive keywords of the catalogue file. An unknown type keyword is logged
// ("Unknown FieldDataType: %1") and gives Unknown; an unknown representation gives None silently.
FieldDataType fieldDataTypeFromString(const QString &text);
FieldDataRepresentation fieldDataRepresentationFromString(const QString &text);
