#pragma once

class FolderLock;
class Office;
class Operator;
class Screens;

/// Whether this copy of the program may run. Tells the operator when another one has the folder.
bool CheckSingleInstance(const FolderLock& lock, Operator& user);

/// The start-up sequence, from the settings to the time lists, with the title screen in front. The
/// questions about past slips come up in the middle of it, before any menu.
void Main(Office& office, Screens& screens);
