#pragma once

#include "platform/Operator.h"
#include "setup/LiveSettings.h"

#include <optional>

/// The panel of the graduated tax scheme: a limit for the primary rate, and a surcharge when it is
/// exceeded. Nothing here goes to disk; the setup screen's save does that.

/// Brings both boxes to currency texts. The first that holds no number is set to zero with a beep,
/// and its place is the answer: the panel stays open there. A scheme without a limit is switched
/// off.
std::optional<int> CheckGraduatedScheme(LiveSettings& settings, Operator& user);

void ClearGraduatedScheme(LiveSettings& settings);
