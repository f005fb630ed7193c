#pragma once

#include "engine/exiffileinfo.h"
#include "engine/geotagmatcher.h"

#include <QList>
#include <QPair>

class EditSession;

using FileMatch = QPair<ExifFileInfoPtr, GeotagMatch>;

// Puts matched positions into the files' current values the way a dragged map pin does, and
// announces each changed key once in session for all files that got it, so the form, the file
// list and the map follow. Unmatched files are left alone. Returns the files changed.
QList<ExifFileInfoPtr> applyGeotagMatches(const QList<FileMatch> &matches, EditSession &session,
                                          const void *source);
