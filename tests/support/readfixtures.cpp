#include "readfixtures.h"

#include "fixtures.h"

#include <QFile>

namespace ReadFixtures {

SampleSet writeSampleSet(const QString &directory)
{
    SampleSet set;
    set.jpeg = directory + QStringLiteral("/Holiday caf\u00e9.jpg");
    set.tiff = directory + QStringLiteral("/O'Brien scan.tif");
    set.png = directory + QStringLiteral("/-dash.png");
    set.text = directory + QStringLiteral("/notes.txt");
    set.missing = directory + QStringLiteral("/gone.jpg");

    set.error = Fixtures::makeImage(
        set.jpeg,
        {QStringLiteral("-IFD0:ImageDescription=Sunset over the bay"),
         QStringLiteral("-IFD0:Make=NIKON CORPORATION"), QStringLiteral("-IPTC:Keywords=beach"),
         QStringLiteral("-IPTC:Keywords=sea, sand"), QStringLiteral("-IPTC:Keywords=sun"),
         QStringLiteral("-IPTC:City=Z\u00fcrich"), QStringLiteral("-XMP-dc:Subject=beach"),
         QStringLiteral("-XMP-dc:Subject=sea, sand"),
         QStringLiteral("-ExifIFD:DateTimeOriginal=2021:06:15 18:30:00"),
         QStringLiteral("-IFD0:Orientation#=6"), QStringLiteral("-ExifIFD:FNumber=2.8"),
         QStringLiteral("-ExifIFD:ISO=400"), QStringLiteral("-GPS:GPSLatitude=48.8583"),
         QStringLiteral("-GPS:GPSLatitudeRef=N"), QStringLiteral("-GPS:GPSLongitude=2.2945"),
         QStringLiteral("-GPS:GPSLongitudeRef=E"), QStringLiteral("-GPS:GPSAltitude=35.27")});
    if (!set.error.isEmpty())
        return set;
    set.error = Fixtures::makeImage(
        set.tiff, {QStringLiteral("-IFD0:Make=Canon"), QStringLiteral("-XMP-dc:Subject=scan"),
                   QStringLiteral("-ExifIFD:CreateDate=1999:12:31 23:59:59")});
    if (!set.error.isEmpty())
        return set;
    set.error = Fixtures::makeImage(
        set.png, {QStringLiteral("-XMP-dc:Subject=only"), QStringLiteral("-XMP-dc:Title=  ")});
    if (!set.error.isEmpty())
        return set;
    QFile text(set.text);
    if (!text.open(QIODevice::WriteOnly) || text.write("not an image\n") < 0)
        set.error = QStringLiteral("could not write ") + set.text;
    return set;
}

} // namespace ReadFixtures
