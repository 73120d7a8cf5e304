#include "Version.h"

namespace Version {
int major() { return FEROLITH_VERSION_MAJOR; }
int minor() { return FEROLITH_VERSION_MINOR; }
int release() { return FEROLITH_VERSION_PATCH; }
int build() { return FEROLITH_BUILD_NUMBER; }

QString text()
{
    return QStringLiteral("v%1.%2.%3 build %4").arg(major()).arg(minor()).arg(release()).arg(build());
}
} // namespace Version
