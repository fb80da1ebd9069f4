#pragma once

#include <QString>

/// The maker's configuration service, as the build says (cmake/Maker.cmake); all empty in a build that says nothing.
namespace quillon::makerservice {

QString applicationId();
QString apiKey();
/// Base address, without a slash at its end.
QString address();

} // namespace quillon::makerservice
