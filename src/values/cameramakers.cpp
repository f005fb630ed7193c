#include "values/cameramakers.h"

#include <QHash>

std::optional<QString> CameraMakers::makerOfMake(const QString &make)
{
    static const QHash<QString, QString> makers{
        {QStringLiteral("Canon"), QStringLiteral("Canon")},
        {QStringLiteral("NIKON CORPORATION"), QStringLiteral("Nikon")},
        {QStringLiteral("OLYMPUS IMAGING CORP."), QStringLiteral("Olympus")},
        {QStringLiteral("PENTAX Corporation"), QStringLiteral("Pentax")},
        {QStringLiteral("Leica Camera AG"), QStringLiteral("Leica")},
        {QStringLiteral("FUJIFILM"), QStringLiteral("Fuji")},
    };
    const auto maker = makers.constFind(make);
    if (maker == makers.cend())
        return std::nullopt;
    return maker.value();
}

QString CameraMakers::unknownMaker()
{
    return QStringLiteral("Unknown");
}
