#pragma once

namespace fleetwright {

class Desktop;
class FileError;

/// Shows which file failed and why, in a message box.
void showFileError(Desktop& desktop, const FileError& error);

}  // namespace fleetwright
