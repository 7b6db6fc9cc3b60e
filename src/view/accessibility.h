#pragma once

namespace orvane {

// Tells screen readers of some widgets otherwise than the toolkit does by itself.
void InstallInterfaces();

} // namespace orvane
