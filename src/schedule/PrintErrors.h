#pragma once

#include "platform/Operator.h"
#include "platform/PrinterSurface.h"
#include "platform/RuntimeFailure.h"

/// The one handler of a printing error: whatever goes wrong throws the job away, tells the operator
/// and leaves the program running. A cancelled job needs no telling.
template <typename Printing>
void HandlePrintErrors(PrinterSurface& surface, Operator& user, Printing&& print) {
    try {
        print();
    } catch (const EndingFailure&) {
        throw;
    } catch (const RuntimeFailure& failure) {
        PassOver([&surface] { surface.AbandonJob(); });
        surface.DrawWidth = 1;
        if (failure.Kind() != FailureKind::PrintCancelled)
            user.MsgBox(QStringLiteral("A Print Error has occurred"), Buttons::Ok,
                        QStringLiteral("Print Error"));
    }
}
