#pragma once

class QWidget;

/// The setup screen's tab of fixed help.
QWidget* MakeSetupHelpTab();
