#pragma once

#include <string>
#include <vector>

namespace tessarin {

/// Runs a script of the shell with $1, $2, … and waits for its end, which the script should bring about at
/// once: what takes time belongs in the background with "&". Nobody has to wait for what it leaves there, and
/// signals reach that as usual. Whether it ended with status 0.
bool runShellScript(const std::string& script, const std::vector<std::string>& arguments = {});

}  // namespace tessarin
