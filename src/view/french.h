#pragma once

class QApplication;

namespace orvane {

// The toolkit's own words and formats in French. The core's number texts are none of its business:
// C's numeric formats, which the toolkit takes from the environment, are put back.
void InstallFrench(QApplication& Application);

} // namespace orvane
