#pragma once

class FieldWatch;
class QLineEdit;

/// Empties a box that shows a zero amount as a key goes down, so that the user types over the
/// zero. The watch tells when the box is left.
FieldWatch* EmptyZeroAtKeyDown(QLineEdit* box);
