#pragma once

#include <QUrl>

/// The maker's addresses; which ones, the build says (cmake/Maker.cmake).
namespace quillon::makersite {

/// Address of the page at that absolute path of the maker's web site.
QUrl page(const QString& path);

/// The mail address that users write to.
QString supportAddress();

/// The page of the collection that the application's icon comes from.
QUrl iconCollection();

} // namespace quillon::makersite
