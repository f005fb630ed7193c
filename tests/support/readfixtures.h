#pragma once

#include <QString>

// A small set of tagged files with awkward names, made by the bundled ExifTool in a directory
// the test owns.
namespace ReadFixtures {

struct SampleSet
{
    QString jpeg;    // "Holiday café.jpg": caption, keywords (one with a comma), IPTC, GPS,
                     // dates, an enumerated tag and numbers
    QString tiff;    // "O'Brien scan.tif": camera make, XMP list, a date
    QString png;     // "-dash.png": XMP only
    QString text;    // "notes.txt": not an image
    QString missing; // a path where nothing exists
    QString error;   // empty when every file was made
};

SampleSet writeSampleSet(const QString &directory);

} // namespace ReadFixtures
