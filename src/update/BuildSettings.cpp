#include "update/BuildSettings.h"

namespace tessarin {

BuildSettings buildSettings() {
  return {TESSARIN_VERSION, TESSARIN_BUILD, TESSARIN_FEED_URL};
}

}  // namespace tessarin
