#include "CleanerCore/Scan/XDGLocationTable.h"

#include <array>

namespace CleanerCore {

namespace {

using enum XDGBase;
using enum XDGLevel;
using enum CleanupCategory;

constexpr std::string_view kChromiumCaches = "*/Cache|Code Cache";
constexpr std::string_view kChromiumShaders = "*/GPUCache|DawnGraphiteCache|DawnWebGPUCache|ShaderCache|GrShaderCache";
constexpr std::string_view kElectronCaches = "Cache|Code Cache|GPUCache";
constexpr std::string_view kElectronShaders = "DawnGraphiteCache|DawnWebGPUCache|CachedData";
constexpr std::string_view kGeckoCaches = "*/cache2|startupCache|thumbnails";

constexpr std::string_view kThumbnails = "Thumbnail Managing Standard, Deleting Thumbnails";
constexpr std::string_view kChromium = "Chromium, User Data Directory: the cache mirrors the profile's path";
constexpr std::string_view kShaders = "Chromium and Electron compile their shaders again";
constexpr std::string_view kElectron = "Electron: Chromium's disk caches in the application's folder";
constexpr std::string_view kGecko = "Firefox keeps in the cache directory only what it fetches or builds again";
constexpr std::string_view kCargo = "The Cargo Book, Cargo Home: any part of the cache can be removed";
constexpr std::string_view kJetBrains = "JetBrains, Directories used by the IDE: logs";

constexpr std::array kTable{
    // The desktop
    XDGLocationRow{
        cache, "thumbnails", "", "normal|large|x-large|xx-large|fail", userCaches, "Thumbnails", safe, kThumbnails},
    XDGLocationRow{cache, "fontconfig", "", "", userCaches, "Fontconfig Cache", safe, "fc-cache(1)"},
    XDGLocationRow{cache, "gstreamer-1.0", "", "", userCaches, "GStreamer Registry", safe,
        "GStreamer, Plugin Registry: rebuilt where it is missing"},
    XDGLocationRow{cache, "babl", "", "", userCaches, "babl Cache", safe,
        "babl measures its conversions again where the file is missing"},

    // Browsers and mail
    XDGLocationRow{cache, "google-chrome", "", kChromiumCaches, userCaches, "Google Chrome", safe, kChromium},
    XDGLocationRow{cache, "google-chrome-beta", "", kChromiumCaches, userCaches, "Google Chrome Beta", safe, kChromium},
    XDGLocationRow{
        cache, "google-chrome-unstable", "", kChromiumCaches, userCaches, "Google Chrome Dev", safe, kChromium},
    XDGLocationRow{cache, "chromium", "", kChromiumCaches, userCaches, "Chromium", safe, kChromium},
    XDGLocationRow{cache, "BraveSoftware/Brave-Browser", "", kChromiumCaches, userCaches, "Brave", safe, kChromium},
    XDGLocationRow{cache, "vivaldi", "", kChromiumCaches, userCaches, "Vivaldi", safe, kChromium},
    XDGLocationRow{cache, "microsoft-edge", "", kChromiumCaches, userCaches, "Microsoft Edge", safe, kChromium},
    XDGLocationRow{cache, "opera", "", "Cache|Code Cache", userCaches, "Opera", safe, kChromium},
    XDGLocationRow{cache, "opera", "", kChromiumCaches, userCaches, "Opera", safe, kChromium},
    XDGLocationRow{cache, "mozilla/firefox", "", kGeckoCaches, userCaches, "Firefox", safe, kGecko},
    XDGLocationRow{cache, "librewolf", "", kGeckoCaches, userCaches, "LibreWolf", safe, kGecko},
    XDGLocationRow{cache, "waterfox", "", kGeckoCaches, userCaches, "Waterfox", safe, kGecko},
    XDGLocationRow{cache, "zen", "", kGeckoCaches, userCaches, "Zen", safe, kGecko},
    XDGLocationRow{cache, "thunderbird", "", "*/cache2|startupCache", userCaches, "Thunderbird", safe, kGecko},

    // Applications that are browsers inside
    XDGLocationRow{config, "Code", "", kElectronCaches, userCaches, "Visual Studio Code", safe, kElectron},
    XDGLocationRow{config, "Code - OSS", "", kElectronCaches, userCaches, "Code - OSS", safe, kElectron},
    XDGLocationRow{config, "VSCodium", "", kElectronCaches, userCaches, "VSCodium", safe, kElectron},
    XDGLocationRow{config, "Cursor", "", kElectronCaches, userCaches, "Cursor", safe, kElectron},
    XDGLocationRow{config, "Slack", "", kElectronCaches, userCaches, "Slack", safe, kElectron},
    XDGLocationRow{config, "Signal", "", kElectronCaches, userCaches, "Signal", safe, kElectron},
    XDGLocationRow{config, "Element", "", kElectronCaches, userCaches, "Element", safe, kElectron},
    XDGLocationRow{config, "obsidian", "", kElectronCaches, userCaches, "Obsidian", safe, kElectron},

    // Logs
    XDGLocationRow{home, ".npm", "npm_config_cache", "_logs", userLogs, "npm Logs", safe, "npm, config: logs-dir"},
    XDGLocationRow{cache, "JetBrains", "", "*/log", userLogs, "JetBrains Logs", safe, kJetBrains},
    XDGLocationRow{cache, "Google", "", "*/log", userLogs, "Android Studio Logs", safe, kJetBrains},

    // Package managers
    XDGLocationRow{cache, "pip", "PIP_CACHE_DIR", "", packageManagerCaches, "pip Cache", safe, "pip, Caching"},
    XDGLocationRow{cache, "pypoetry", "POETRY_CACHE_DIR", "cache|artifacts", packageManagerCaches, "Poetry", safe,
        "Poetry, cache-dir: downloads, the environments aside"},
    XDGLocationRow{home, ".npm", "npm_config_cache", "_cacache", packageManagerCaches, "npm Cache", safe,
        "npm-cache(1): strictly a cache, damage to it is healed"},
    XDGLocationRow{cache, "pnpm", "", "", packageManagerCaches, "pnpm Cache", safe, "pnpm, cache-dir: metadata"},
    XDGLocationRow{home, ".bun/install/cache", "BUN_INSTALL_CACHE_DIR", "", packageManagerCaches, "Bun Cache", safe,
        "Bun, Global cache"},
    XDGLocationRow{
        home, ".cargo", "CARGO_HOME", "registry/cache", packageManagerCaches, "Cargo Registry Cache", safe, kCargo},
    XDGLocationRow{home, ".cargo", "CARGO_HOME", "registry/src/*", packageManagerCaches, "Cargo Registry Sources", safe,
        kCargo, HiddenItems::included},
    XDGLocationRow{home, ".cargo", "CARGO_HOME", "git/checkouts", packageManagerCaches, "Cargo Git Checkouts", safe,
        kCargo, HiddenItems::included},
    XDGLocationRow{cache, "composer", "COMPOSER_CACHE_DIR", "", packageManagerCaches, "Composer Cache", safe,
        "Composer, clear-cache"},
    XDGLocationRow{data, "NuGet", "", "http-cache|v3-cache", packageManagerCaches, "NuGet", safe,
        "dotnet nuget locals, http-cache"},
    XDGLocationRow{cache, "gem", "", "", packageManagerCaches, "RubyGems Cache", safe, "gem(1): specifications"},
    XDGLocationRow{
        home, ".gem/specs", "", "", packageManagerCaches, "RubyGems Specifications", safe, "gem(1): specifications"},
    XDGLocationRow{home, ".bundle/cache", "BUNDLE_USER_CACHE", "", packageManagerCaches, "Bundler Cache", safe,
        "Bundler, config: user cache"},
    XDGLocationRow{cache, "vcpkg/archives", "VCPKG_DEFAULT_BINARY_CACHE", "", packageManagerCaches, "vcpkg Archives",
        safe, "vcpkg, Binary caching"},

    // Compilers
    XDGLocationRow{cache, "go-build", "GOCACHE", "", developerToolCaches, "Go Build Cache", safe, "go help cache"},
    XDGLocationRow{cache, "ccache", "CCACHE_DIR", "", developerToolCaches, "ccache", safe, "ccache(1)"},
    XDGLocationRow{home, ".ccache", "", "", developerToolCaches, "~/.ccache", safe, "ccache(1): the older place"},
    XDGLocationRow{cache, "sccache", "SCCACHE_DIR", "", developerToolCaches, "sccache", safe, "sccache, Local"},
    XDGLocationRow{home, ".android", "ANDROID_USER_HOME", "cache|build-cache", developerToolCaches, "Android", safe,
        "Android, Build cache"},

    // What costs something to have again
    XDGLocationRow{cache, "mesa_shader_cache", "", "", userCaches, "Mesa Shader Cache", caution,
        "Mesa, environment variables: shader cache"},
    XDGLocationRow{cache, "nvidia/GLCache", "", "", userCaches, "NVIDIA Shader Cache", caution,
        "NVIDIA driver README, OpenGL environment variables"},
    XDGLocationRow{home, ".nv", "", "GLCache|ComputeCache", userCaches, "NVIDIA", caution,
        "NVIDIA driver README and CUDA programming guide, environment variables"},
    XDGLocationRow{config, "google-chrome", "", kChromiumShaders, userCaches, "Google Chrome", caution, kShaders},
    XDGLocationRow{
        config, "google-chrome-beta", "", kChromiumShaders, userCaches, "Google Chrome Beta", caution, kShaders},
    XDGLocationRow{
        config, "google-chrome-unstable", "", kChromiumShaders, userCaches, "Google Chrome Dev", caution, kShaders},
    XDGLocationRow{config, "chromium", "", kChromiumShaders, userCaches, "Chromium", caution, kShaders},
    XDGLocationRow{config, "BraveSoftware/Brave-Browser", "", kChromiumShaders, userCaches, "Brave", caution, kShaders},
    XDGLocationRow{config, "vivaldi", "", kChromiumShaders, userCaches, "Vivaldi", caution, kShaders},
    XDGLocationRow{config, "microsoft-edge", "", kChromiumShaders, userCaches, "Microsoft Edge", caution, kShaders},
    XDGLocationRow{config, "opera", "", "GPUCache|DawnGraphiteCache|DawnWebGPUCache|ShaderCache|GrShaderCache",
        userCaches, "Opera", caution, kShaders},
    XDGLocationRow{config, "Code", "", kElectronShaders, userCaches, "Visual Studio Code", caution, kShaders},
    XDGLocationRow{config, "Code - OSS", "", kElectronShaders, userCaches, "Code - OSS", caution, kShaders},
    XDGLocationRow{config, "VSCodium", "", kElectronShaders, userCaches, "VSCodium", caution, kShaders},
    XDGLocationRow{config, "Cursor", "", kElectronShaders, userCaches, "Cursor", caution, kShaders},
    XDGLocationRow{
        config, "Code", "", "logs", userLogs, "Visual Studio Code Logs", caution, "VS Code, Open Logs Folder"},
    XDGLocationRow{config, "VSCodium", "", "logs", userLogs, "VSCodium Logs", caution, "VS Code, Open Logs Folder"},
    XDGLocationRow{config, "Cursor", "", "logs", userLogs, "Cursor Logs", caution, "VS Code, Open Logs Folder"},
    XDGLocationRow{data, "xorg", "", "", userLogs, "Xorg Logs", caution, "Xorg(1): the server's log"},
    XDGLocationRow{config, "discord", "", kElectronCaches, userCaches, "Discord", caution,
        "Electron; pictures that were marked as favourites are fetched from here"},
    XDGLocationRow{cache, "restic", "RESTIC_CACHE_DIR", "", userCaches, "restic Cache", caution, "restic, Caching"},
    XDGLocationRow{data, "Steam/steamapps/shadercache", "", "", userCaches, "Steam Shader Cache", caution,
        "Steam, Shader Pre-Caching"},
    XDGLocationRow{home, ".npm", "npm_config_cache", "_npx", packageManagerCaches, "npx Packages", caution, "npx(1)"},
    XDGLocationRow{
        cache, "yarn", "YARN_CACHE_FOLDER", "", packageManagerCaches, "Yarn Cache", caution, "Yarn 1, yarn cache"},
    XDGLocationRow{home, ".yarn/berry", "YARN_GLOBAL_FOLDER", "cache", packageManagerCaches, "Yarn Berry Cache",
        caution, "Yarn, enableGlobalCache: it may be the only copy of a project's packages"},
    XDGLocationRow{
        home, ".cargo", "CARGO_HOME", "registry/index", packageManagerCaches, "Cargo Registry Index", caution, kCargo},
    XDGLocationRow{
        home, ".cargo", "CARGO_HOME", "git/db", packageManagerCaches, "Cargo Git Repositories", caution, kCargo},
    XDGLocationRow{home, ".gradle", "GRADLE_USER_HOME", "caches", packageManagerCaches, "Gradle Caches", caution,
        "Gradle, Gradle-managed Directories"},
    XDGLocationRow{home, ".gradle", "GRADLE_USER_HOME", "wrapper/dists", packageManagerCaches, "Gradle Distributions",
        caution, "Gradle, Gradle-managed Directories"},
    XDGLocationRow{home, ".nuget/packages", "NUGET_PACKAGES", "", packageManagerCaches, "NuGet Packages", caution,
        "dotnet nuget locals, global-packages"},
    XDGLocationRow{home, ".cabal", "CABAL_DIR", "packages", packageManagerCaches, "Cabal Packages", caution,
        "Cabal, remote-repo-cache"},
    XDGLocationRow{
        home, ".pub-cache", "PUB_CACHE", "hosted", packageManagerCaches, "Dart Pub Cache", caution, "dart pub cache"},
    XDGLocationRow{cache, "yay", "", "", packageManagerCaches, "yay Cache", caution, "yay(8): build directory"},
    XDGLocationRow{cache, "paru", "", "clone", packageManagerCaches, "paru Cache", caution, "paru(8): clone directory"},
    XDGLocationRow{cache, "deno", "DENO_DIR", "", developerToolCaches, "Deno Cache", caution, "Deno, DENO_DIR"},
    XDGLocationRow{cache, "ms-playwright", "PLAYWRIGHT_BROWSERS_PATH", "", developerToolCaches, "Playwright Browsers",
        caution, "Playwright, Managing browser binaries"},
    XDGLocationRow{cache, "Cypress", "CYPRESS_CACHE_FOLDER", "", developerToolCaches, "Cypress Binaries", caution,
        "Cypress, Binary cache"},
    XDGLocationRow{cache, "puppeteer", "PUPPETEER_CACHE_DIR", "", developerToolCaches, "Puppeteer Browsers", caution,
        "Puppeteer, cacheDirectory"},
    XDGLocationRow{cache, "electron", "electron_config_cache", "", developerToolCaches, "Electron Downloads", caution,
        "Electron, Installation: cache"},

    // What may be the only copy
    XDGLocationRow{data, "pnpm/store", "", "", packageManagerCaches, "pnpm Content Store", manualReview,
        "pnpm store prune: linked into projects"},
    XDGLocationRow{home, "miniconda3|anaconda3|miniforge3|mambaforge", "", "pkgs", packageManagerCaches,
        "conda Packages", manualReview, "conda clean: environments may link to them"},
    XDGLocationRow{home, ".m2/repository", "", "", packageManagerCaches, "Maven Repository", manualReview,
        "Maven, Introduction to Repositories: artifacts that were never released"},
    XDGLocationRow{cache, "huggingface", "HF_HOME", "hub", developerToolCaches, "Hugging Face Models", manualReview,
        "Hugging Face Hub, Manage your cache: models may be gone or gated"},
    XDGLocationRow{cache, "torch", "TORCH_HOME", "hub", developerToolCaches, "PyTorch Hub", manualReview,
        "torch.hub: weights may be gone"},
    XDGLocationRow{cache, "whisper", "", "", developerToolCaches, "Whisper Models", manualReview,
        "Whisper loads a model again where it is missing"},
    XDGLocationRow{cache, "winetricks", "", "", userCaches, "Winetricks Downloads", manualReview,
        "Winetricks: installers that are no longer offered"},
};

} // namespace

std::span<const XDGLocationRow> xdgLocationTable()
{
    return kTable;
}

} // namespace CleanerCore
