#pragma once

#include <QString>

/// Where pages go that become documents instead of paper: "Tessel Delivery" under the user's
/// documents folder, full path. It need not exist.
QString PrintedDocumentsFolder();

/// The full path of a document of that title in that folder; a slash in the title is no folder.
QString PrintedDocumentPath(const QString& title);

/// The path itself, or the first of "name (2).pdf", "name (3).pdf" ... that is not taken.
QString FreePath(const QString& path);
