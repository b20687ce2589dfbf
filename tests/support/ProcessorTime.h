#pragma once

/// The processor time that the test's own thread has taken so far, in seconds; what modems are
/// played with is not in it.
double ProcessorSeconds();
