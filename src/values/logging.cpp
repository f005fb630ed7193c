#include "values/logging.h"

Q_LOGGING_CATEGORY(lcTagsmith, "tagsmith")
