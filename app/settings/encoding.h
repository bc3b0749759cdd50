#pragma once

#include <string>
#include <string_view>

namespace ng {

/// Makes free text safe for a one-line key-equals-value entry: every blank becomes "_", every tab
/// "~", every carriage return "^" and every line feed the grave accent. The four substitutes are
/// not themselves escaped, so a literal "_" comes back as a blank, as in all files written so far.
std::string EncodeNG3(std::string_view text);

/// The reverse of EncodeNG3, over the whole text.
std::string DecodeNG3(std::string_view text);

}  // namespace ng
