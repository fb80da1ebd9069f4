#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QUrl>

/// Who this program is: the names that settings, desktops and systems know it by.
namespace quillon::identity {

inline constexpr QLatin1StringView name("Quillon");

/// Of the application: names its settings, its desktop entries and the lock of its one instance.
inline constexpr QLatin1StringView identifier("com.Orvane.Quillon");

/// Of the companion inside the application's bundle that macOS starts at log-in.
inline constexpr QLatin1StringView companionIdentifier("com.Orvane.QuillonHelper");

/// The file whose lock the one running instance of the user holds.
QString instanceLock();

} // namespace quillon::identity

namespace quillon {

/// The application's own version, such as "1.0.0".
QString bundleShortVersion();

/// The build number of this version.
QString bundleVersion();

} // namespace quillon

/// The maker's addresses; which ones, the build says (cmake/Maker.cmake).
namespace quillon::makersite {

/// Address of the page at that absolute path of the maker's web site.
QUrl page(const QString& path);

/// The mail address that users write to.
QString supportAddress();

/// The page of the collection that the application's icon comes from.
QUrl iconCollection();

} // namespace quillon::makersite

/// The maker's configuration service, as the build says (cmake/Maker.cmake); all empty in a build that says nothing.
/// The program holds the identifier and the key obfuscated and the address in base64, none of them as readable text.
namespace quillon::makerservice {

QString applicationId();
QString apiKey();
/// Base address, without a slash at its end.
QString address();

} // namespace quillon::makerservice
