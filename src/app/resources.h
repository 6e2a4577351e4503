#pragma once

namespace Scheduler {

/// Registers the images under :/images/ and the catalogues under :/i18n/. Repeating it is harmless.
void registerResources();

} // namespace Scheduler
