#include "base/notation.h"

#include "base/failure.h"
#include "base/number_text.h"

#include <cmath>

namespace orvane {

std::string T(Montant Amount)
{
    return TextOfScaled(Amount.TenThousandths(), 4);
}

std::string T(double Value)
{
    if (!std::isfinite(Value))
        throw Failure(FailureKind::Overflow, "∞");
    return TextOfDouble(Value);
}

} // namespace orvane
