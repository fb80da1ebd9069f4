#pragma once

class QString;

namespace quillon {

/// Starts the Quillon that this program was installed with, and does not wait for it. False, with one clear line in
/// `error`, when it does not start.
[[nodiscard]] bool startQuillon(QString* error);

} // namespace quillon
