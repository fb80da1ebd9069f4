#pragma once

#include <QString>

/// The maker's configuration service, as the build says (cmake/Maker.cmake); all empty in a build that says nothing.
/// The program holds the identifier and the key obfuscated and the address in base64, none of them as readable text.
namespace quillon::makerservice {

QString applicationId();
QString apiKey();
/// Base address, without a slash at its end.
QString address();

} // namespace quillon::makerservice
