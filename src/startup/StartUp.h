#pragma once

class Office;
class Screens;

/// The start-up sequence, from the settings to the time lists, with the title screen in front. The
/// questions about past slips come up in the middle of it, before any menu.
void StartUp(Office& office, Screens& screens);
