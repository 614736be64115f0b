#include "results/web_addresses.h"

namespace quillon {

std::string_view WebHost() {
  return QUILLON_WEB_HOST;
}

std::string HomeAddress() {
  return "http://" + std::string(WebHost()) + "/quillon/";
}

std::string VersionFileAddress() {
  return HomeAddress() + "register/ver.html";
}

std::string DownloadAddress() {
  return HomeAddress() + "download.html";
}

std::string FeedbackScriptAddress() {
  return HomeAddress() + "register/benice.php";
}

}  // namespace quillon
