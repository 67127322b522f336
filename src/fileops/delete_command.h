// F8 and its like: what a panel's user chose to delete, with the confirmations.
#pragma once

#include "fileops/file_operation.h"
#include "panels/panel.h"

// Deletes the tagged entries, or the one under the cursor, after the questions
// that Options::Confirmations leaves on; both panels are read again.
void DeleteCommand(TPanel& panel);

// The same without the questions before and the reading after.
void DeleteSelection(FileOperation& operation, TPanel& panel);

// Shift-F8: deletes the one file that the user names.
void DeleteNamedFile(TPanel& panel);

// What DeleteSelection does to a panel on an archive; unset where no archive can
// be changed, and then nothing is asked there either.
extern void (*DeleteInArchive)(FileOperation& operation, TPanel& panel);
