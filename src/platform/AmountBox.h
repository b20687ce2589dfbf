#pragma once

class EntryField;

/// Empties a box that shows a zero amount as a key goes down, so that the user types over the zero.
void EmptyZeroAtKeyDown(EntryField* box);
