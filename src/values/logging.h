#pragma once

#include <QLoggingCategory>
#include <QString>

#include <functional>

// Every log line of the program goes through this category, as plain text.
Q_DECLARE_LOGGING_CATEGORY(lcTagsmith)

// Runs call at a seam where the work must go on: what it throws is logged as the text describe
// makes of the exception's name and reason, and goes no further.
void runLoggingExceptions(
    const std::function<void()> &call,
    const std::function<QString(const QString &name, const QString &reason)> &describe);
