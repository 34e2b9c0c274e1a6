#pragma once

namespace tessarin {

/// Why a check came to no answer.
enum class UpdateFailure {
  cancelled,         ///< by the user
  noConnection,      ///< name not known, nobody listens, the line broke
  timedOut,          ///< the whole took too long
  notTrusted,        ///< the certificate does not stand for the server
  notSecure,         ///< the address, or one that it leads to, is not HTTPS
  tooManyRedirects,  ///< one address led to another once too often
  serverError,       ///< the server answers with something else than a feed
  tooLarge,          ///< the feed exceeds the limit
  malformed,         ///< what came is no feed
};

}  // namespace tessarin
