#pragma once

#include <QString>

// The folders this program has made scratch places in, kept in the user's data folder, so that
// what a killed or crashed save left there is found at the next start even if those files are
// never opened again. A folder is also cleaned, once per run, before its first save.
class ScratchJournal
{
public:
    // Tests keep the journal in a folder of their own; empty restores the default.
    static void setPath(const QString &path);
    static QString path();

    // Before the first scratch place in folder in this run: removes what stopped runs left there
    // and notes the folder. Cheap after the first call for a folder.
    static void enter(const QString &folder);

    // Removes what stopped runs left in every noted folder and forgets the folders left clean.
    // Returns how many leftovers were removed.
    static int cleanUp();
};
