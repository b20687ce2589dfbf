#pragma once

#include <QString>

/// Where the jobs of one printing command go.
struct PrintDestination {
    /// The printer's name in the print system; empty for the machine's default printer.
    QString Printer = {};
    /// Full path of a PDF file to write in place of paper; empty for paper.
    QString File = {};
    /// Of each job, on paper; at least 1.
    int Copies = 1;

    bool operator==(const PrintDestination&) const = default;
};
