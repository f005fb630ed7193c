#include "catalogue/stringtables.h"

#include <QCoreApplication>

namespace {

void installPluralForms()
{
    StringTables::installPluralForms();
}

} // namespace

// Every test program counts in its texts as the application does.
Q_COREAPP_STARTUP_FUNCTION(installPluralForms)
