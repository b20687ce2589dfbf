#pragma once

#include "setup/LiveSettings.h"

/// The two ways to write an address. No file holds the style in force: the caption of cmdAddress
/// is the setting, and it follows from the company's name and postal code.

bool IsUsaStyle(const LiveSettings& settings);

/// At the start of the program: the style that the business data decides, so that an international
/// business does not see its customers in the USA style until somebody opens the setup screen.
/// Where nothing decides, the style stays.
void DeriveAddressStyle(LiveSettings& settings);

/// At each showing of the setup screen. A company without a postal code has the international
/// style, all others the USA style. With no name and a postal code that is no number nothing
/// decides, and the style flips.
void ApplyAddressStyle(LiveSettings& settings);

/// The click on cmdAddress. Going to the USA style brings back the postal code as last saved;
/// going to the international style empties its box.
void FlipAddressStyle(LiveSettings& settings);
