#include "platform/freedesktop/BundleIdentifiers.h"

#include <algorithm>
#include <array>

#include "platform/freedesktop/AsciiCase.h"

namespace tessarin::freedesktop {
namespace {

struct Product {
  std::string_view name;  ///< in small letters
  std::string_view identifier;
};

constexpr std::string_view chrome = "com.google.Chrome";
constexpr std::string_view chromeCanary = "com.google.Chrome.canary";
constexpr std::string_view firefox = "org.mozilla.firefox";
constexpr std::string_view edge = "com.microsoft.edgemac";
constexpr std::string_view brave = "com.brave.Browser";
constexpr std::string_view opera = "com.operasoftware.Opera";
constexpr std::string_view vivaldi = "com.vivaldi.Vivaldi";
constexpr std::string_view webKitBrowser = "com.apple.Safari";
constexpr std::string_view slack = "com.tinyspeck.slackmacgap";
constexpr std::string_view ghostty = "com.mitchellh.ghostty";
constexpr std::string_view kitty = "net.kovidgoyal.kitty";
constexpr std::string_view alacritty = "io.alacritty";
constexpr std::string_view hyper = "co.zeit.hyper";
constexpr std::string_view wezterm = "com.github.wez.wezterm";

/// Desktop-entry ids and window classes of the products on the built-in lists and of those built from them;
/// packages of other systems put the product's name twice ("firefox_firefox") or a domain before it.
constexpr std::array products = {
    Product{"firefox", firefox},
    Product{"firefox-esr", firefox},
    Product{"org.mozilla.firefox", firefox},
    Product{"firefox_firefox", firefox},
    Product{"navigator", firefox},
    Product{"firefox-beta", firefox},
    Product{"firefox-developer-edition", firefox},
    Product{"firefoxdeveloperedition", firefox},
    Product{"firefox-aurora", firefox},
    Product{"firefox-nightly", firefox},
    Product{"firefox-trunk", firefox},
    Product{"librewolf", firefox},
    Product{"io.gitlab.librewolf-community", firefox},
    Product{"waterfox", firefox},
    Product{"net.waterfox.waterfox", firefox},
    Product{"icecat", firefox},
    Product{"floorp", firefox},
    Product{"one.ablaze.floorp", firefox},
    Product{"zen", firefox},
    Product{"zen-browser", firefox},
    Product{"app.zen_browser.zen", firefox},
    Product{"mullvad browser", firefox},
    Product{"mullvad-browser", firefox},
    Product{"tor browser", firefox},
    Product{"torbrowser", firefox},
    Product{"google-chrome", chrome},
    Product{"com.google.chrome", chrome},
    Product{"chromium", chrome},
    Product{"chromium-browser", chrome},
    Product{"org.chromium.chromium", chrome},
    Product{"chromium_chromium", chrome},
    Product{"chromium-freeworld", chrome},
    Product{"ungoogled-chromium", chrome},
    Product{"io.github.ungoogled_software.ungoogled_chromium", chrome},
    Product{"thorium-browser", chrome},
    Product{"google-chrome-beta", chrome},
    Product{"google-chrome-unstable", chromeCanary},
    Product{"google-chrome-canary", chromeCanary},
    Product{"com.google.chromedev", chromeCanary},
    Product{"microsoft-edge", edge},
    Product{"microsoft-edge-stable", edge},
    Product{"microsoft-edge-beta", edge},
    Product{"microsoft-edge-dev", edge},
    Product{"com.microsoft.edge", edge},
    Product{"brave-browser", brave},
    Product{"com.brave.browser", brave},
    Product{"brave", brave},
    Product{"brave_brave", brave},
    Product{"brave-browser-beta", brave},
    Product{"brave-browser-nightly", brave},
    Product{"opera", opera},
    Product{"com.opera.opera", opera},
    Product{"opera_opera", opera},
    Product{"opera-beta", opera},
    Product{"opera-developer", opera},
    Product{"vivaldi-stable", vivaldi},
    Product{"com.vivaldi.vivaldi", vivaldi},
    Product{"vivaldi", vivaldi},
    Product{"vivaldi-snapshot", vivaldi},
    Product{"org.gnome.epiphany", webKitBrowser},
    Product{"epiphany", webKitBrowser},
    Product{"epiphany-browser", webKitBrowser},
    Product{"slack", slack},
    Product{"com.slack.slack", slack},
    Product{"slack_slack", slack},
    Product{"com.mitchellh.ghostty", ghostty},
    Product{"ghostty", ghostty},
    Product{"kitty", kitty},
    Product{"net.kovidgoyal.kitty", kitty},
    Product{"alacritty", alacritty},
    Product{"io.alacritty", alacritty},
    Product{"org.alacritty.alacritty", alacritty},
    Product{"hyper", hyper},
    Product{"co.zeit.hyper", hyper},
    Product{"org.wezfurlong.wezterm", wezterm},
    Product{"wezterm", wezterm},
    Product{"wezterm-gui", wezterm},
};

constexpr std::array<std::string_view, 50> terminalClasses = {"alacritty",
                                                              "aterm",
                                                              "blackbox",
                                                              "com.mitchellh.ghostty",
                                                              "com.raggesilver.blackbox",
                                                              "contour",
                                                              "cool-retro-term",
                                                              "deepin-terminal",
                                                              "eterm",
                                                              "ghostty",
                                                              "gnome-terminal",
                                                              "gnome-terminal-server",
                                                              "guake",
                                                              "hyper",
                                                              "io.elementary.terminal",
                                                              "kgx",
                                                              "kitty",
                                                              "koi8rxterm",
                                                              "konsole",
                                                              "kterm",
                                                              "lxterm",
                                                              "lxterminal",
                                                              "mate-terminal",
                                                              "mlterm",
                                                              "org.gnome.console",
                                                              "org.gnome.ptyxis",
                                                              "org.gnome.terminal",
                                                              "org.kde.konsole",
                                                              "org.wezfurlong.wezterm",
                                                              "ptyxis",
                                                              "qterminal",
                                                              "rio",
                                                              "roxterm",
                                                              "rxvt",
                                                              "sakura",
                                                              "st",
                                                              "st-256color",
                                                              "stterm",
                                                              "tabby",
                                                              "terminator",
                                                              "terminology",
                                                              "termite",
                                                              "tilda",
                                                              "tilix",
                                                              "urxvt",
                                                              "uxterm",
                                                              "wezterm",
                                                              "xfce4-terminal",
                                                              "xterm",
                                                              "yakuake"};
static_assert(std::ranges::is_sorted(terminalClasses));

}  // namespace

std::optional<std::string> listedIdentifier(std::string_view name) {
  const std::string wanted = lowerCase(name);
  const auto found = std::ranges::find(products, wanted, &Product::name);
  if (found == products.end()) return std::nullopt;
  return std::string(found->identifier);
}

std::vector<std::string> namesOfListed(std::string_view identifier) {
  std::vector<std::string> names;
  for (const Product& product : products) {
    if (product.identifier == identifier) names.emplace_back(product.name);
  }
  return names;
}

bool isTerminalClass(std::string_view windowClass) {
  return std::ranges::binary_search(terminalClasses, lowerCase(windowClass));
}

std::optional<PasteChord> chordOfClass(std::string_view windowClass) {
  const std::string name = lowerCase(windowClass);
  if (name == "gvim") return PasteChord::registerPlus;
  // While anybody listens on the accessibility bus, Qt gives the page a key only when others have been asked
  // about it: Control that is still underway when V comes is taken for the paste, and V pastes again.
  if (name == "falkon" || name == "org.kde.falkon") return PasteChord::controlShiftV;
  const bool isKnown = name == "emacs" || isTerminalClass(name);
  return isKnown ? std::optional(PasteChord::shiftInsert) : std::nullopt;
}

}  // namespace tessarin::freedesktop
