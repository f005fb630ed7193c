#include "values/logging.h"

#include "values/tagsmithexception.h"

#include <exception>

Q_LOGGING_CATEGORY(lcTagsmith, "tagsmith")

void runLoggingExceptions(const std::function<void()> &call,
                          const std::function<QString(const QString &, const QString &)> &describe)
{
    try {
        call();
    } catch (const TagsmithException &e) {
        qCWarning(lcTagsmith).noquote() << describe(e.name(), e.reason());
    } catch (const std::exception &e) {
        qCWarning(lcTagsmith).noquote()
            << describe(QStringLiteral("std::exception"), QString::fromUtf8(e.what()));
    }
}
