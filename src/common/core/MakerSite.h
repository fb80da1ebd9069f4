#pragma once

#include <QUrl>

/// The maker's web site; which one it is, the build says (cmake/Maker.cmake).
namespace quillon::makersite {

/// Address of the page at that absolute path.
QUrl page(const QString& path);

} // namespace quillon::makersite
