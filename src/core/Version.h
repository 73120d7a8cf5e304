#pragma once

#include <QString>

// The version comes from the build: project version and build number.
namespace Version {
int major();
int minor();
int release();
int build();
// "v18.0.0 build 42"
QString text();
} // namespace Version
