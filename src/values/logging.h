#pragma once

#include <QLoggingCategory>

// Every log line of the program goes through this category, as plain text.
Q_DECLARE_LOGGING_CATEGORY(lcTagsmith)
