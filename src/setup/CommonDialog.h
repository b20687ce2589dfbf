#pragma once

#include <QString>

/// What the program's one dialog for files and colours was last left with; it is shared by all that
/// open it.
struct CommonDialog {
    /// The file that was picked last; empty for none.
    QString FileName;
    /// The colour that was picked last, 0x00BBGGRR.
    quint32 Color = 0;
    /// Whether a cancelled dialog leaves everything as it was. Only a search for a file turns this
    /// on; before the first, a cancelled colour dialog gives the colour it was last left with.
    bool RaisesErrorOnCancel = false;
};
