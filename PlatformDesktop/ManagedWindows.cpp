#include "PlatformDesktop/ManagedWindows.h"

#include <algorithm>
#include <cstdlib>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>
#include <xcb/res.h>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

namespace PlatformDesktop {

namespace {

struct Freeing {
    void operator()(void* memory) const { std::free(memory); }
};

/// What a request was answered, which C has allocated.
template <typename Value>
using Reply = std::unique_ptr<Value, Freeing>;

/// Pagers and the like ask in their user's name.
constexpr auto kSourceIndication = XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER;
constexpr std::uint32_t kMaximumPropertyWords = 1024;

} // namespace

class ManagedWindows::Connection {
public:
    Connection(const std::string& display, std::string hostName)
        : m_connection(xcb_connect(display.c_str(), &m_screen))
        , m_hostName(std::move(hostName))
    {
        if (xcb_connection_has_error(m_connection) != 0) {
            return;
        }
        m_hasHints = xcb_ewmh_init_atoms_replies(&m_hints, xcb_ewmh_init_atoms(m_connection, &m_hints), nullptr) != 0;
        m_deleteWindow = atom("WM_DELETE_WINDOW");
        m_tellsProcesses = hasClientIdentifiers();
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection()
    {
        if (m_hasHints) {
            xcb_ewmh_connection_wipe(&m_hints);
        }
        xcb_disconnect(m_connection);
    }

    /// A manager that has ended leaves its promises behind, but not the window that proves it.
    bool isManaged()
    {
        xcb_window_t manager = XCB_WINDOW_NONE;
        xcb_window_t proof = XCB_WINDOW_NONE;
        return m_hasHints && managerNamedBy(root(), manager) && managerNamedBy(manager, proof) && proof == manager
            && supports(m_hints._NET_CLIENT_LIST) && supports(m_hints._NET_CLOSE_WINDOW);
    }

    std::vector<xcb_window_t> windows()
    {
        xcb_ewmh_get_windows_reply_t list{};
        const auto cookie = xcb_ewmh_get_client_list(&m_hints, m_screen);
        if (xcb_ewmh_get_client_list_reply(&m_hints, cookie, &list, nullptr) == 0) {
            return {};
        }
        const std::span all(list.windows, list.windows_len);
        std::vector<xcb_window_t> windows(all.begin(), all.end());
        xcb_ewmh_get_windows_reply_wipe(&list);
        return windows;
    }

    bool understandsClosing(xcb_window_t window)
    {
        const auto protocols = property(window, m_hints.WM_PROTOCOLS, XCB_ATOM_ATOM);
        if (!protocols) {
            return false;
        }
        const auto* const first = static_cast<const xcb_atom_t*>(xcb_get_property_value(protocols.get()));
        const std::span all(first, protocols->format == 32 ? protocols->value_len : 0);
        return m_deleteWindow != XCB_ATOM_NONE && std::ranges::find(all, m_deleteWindow) != all.end();
    }

    bool isOfThisMachine(xcb_window_t window)
    {
        const auto machine = property(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_GET_PROPERTY_TYPE_ANY);
        if (!machine || m_hostName.empty()) {
            return false;
        }
        const auto* const text = static_cast<const char*>(xcb_get_property_value(machine.get()));
        std::string_view name(text, static_cast<std::size_t>(xcb_get_property_value_length(machine.get())));
        name = name.substr(0, name.find('\0'));
        return name == m_hostName;
    }

    std::optional<std::int32_t> processOf(xcb_window_t window)
    {
        std::uint32_t process = 0;
        if (m_tellsProcesses) {
            process = makerOf(window);
        } else if (xcb_ewmh_get_wm_pid_reply(&m_hints, xcb_ewmh_get_wm_pid(&m_hints, window), &process, nullptr) == 0) {
            process = 0;
        }
        return process > 0 && std::in_range<std::int32_t>(process) ? std::optional(static_cast<std::int32_t>(process))
                                                                   : std::nullopt;
    }

    std::optional<xcb_window_t> activeWindow()
    {
        xcb_window_t window = XCB_WINDOW_NONE;
        const auto cookie = xcb_ewmh_get_active_window(&m_hints, m_screen);
        if (xcb_ewmh_get_active_window_reply(&m_hints, cookie, &window, nullptr) == 0 || window == XCB_WINDOW_NONE) {
            return std::nullopt;
        }
        return window;
    }

    bool requestClose(xcb_window_t window)
    {
        xcb_ewmh_request_close_window(&m_hints, m_screen, window, XCB_CURRENT_TIME, kSourceIndication);
        // The answer to this comes only after the server has taken what was sent before.
        const Reply<xcb_get_input_focus_reply_t> answer(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        return answer != nullptr;
    }

private:
    xcb_window_t root() const { return m_hints.screens[m_screen]->root; }

    xcb_atom_t atom(std::string_view name)
    {
        const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    Reply<xcb_get_property_reply_t> property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type)
    {
        const auto cookie = xcb_get_property(m_connection, 0, window, name, type, 0, kMaximumPropertyWords);
        return Reply<xcb_get_property_reply_t>(xcb_get_property_reply(m_connection, cookie, nullptr));
    }

    bool managerNamedBy(xcb_window_t window, xcb_window_t& manager)
    {
        const auto cookie = xcb_ewmh_get_supporting_wm_check(&m_hints, window);
        return xcb_ewmh_get_supporting_wm_check_reply(&m_hints, cookie, &manager, nullptr) != 0;
    }

    bool supports(xcb_atom_t hint)
    {
        xcb_ewmh_get_atoms_reply_t list{};
        const auto cookie = xcb_ewmh_get_supported(&m_hints, m_screen);
        if (xcb_ewmh_get_supported_reply(&m_hints, cookie, &list, nullptr) == 0) {
            return false;
        }
        const std::span all(list.atoms, list.atoms_len);
        const bool isThere = std::ranges::find(all, hint) != all.end();
        xcb_ewmh_get_atoms_reply_wipe(&list);
        return isThere;
    }

    bool hasClientIdentifiers()
    {
        const auto* const extension = xcb_get_extension_data(m_connection, &xcb_res_id);
        if (extension == nullptr || extension->present == 0) {
            return false;
        }
        const Reply<xcb_res_query_version_reply_t> version(
            xcb_res_query_version_reply(m_connection, xcb_res_query_version(m_connection, 1, 2), nullptr));
        return version && std::tie(version->server_major, version->server_minor) >= std::tuple(1, 2);
    }

    /// 0 if the server does not know it.
    std::uint32_t makerOf(xcb_window_t window)
    {
        const xcb_res_client_id_spec_t question{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
        const auto cookie = xcb_res_query_client_ids(m_connection, 1, &question);
        const Reply<xcb_res_query_client_ids_reply_t> reply(
            xcb_res_query_client_ids_reply(m_connection, cookie, nullptr));
        if (!reply) {
            return 0;
        }
        for (auto each = xcb_res_query_client_ids_ids_iterator(reply.get()); each.rem > 0;
            xcb_res_client_id_value_next(&each)) {
            const bool isProcess = (each.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0;
            if (isProcess && xcb_res_client_id_value_value_length(each.data) == 1) {
                return *xcb_res_client_id_value_value(each.data);
            }
        }
        return 0;
    }

    int m_screen = 0;
    xcb_connection_t* m_connection;
    std::string m_hostName;
    xcb_ewmh_connection_t m_hints{};
    bool m_hasHints = false;
    xcb_atom_t m_deleteWindow = XCB_ATOM_NONE;
    bool m_tellsProcesses = false;
};

ManagedWindows::ManagedWindows(std::unique_ptr<Connection> connection)
    : m_connection(std::move(connection))
{
}

ManagedWindows::ManagedWindows(ManagedWindows&& other) noexcept = default;
ManagedWindows& ManagedWindows::operator=(ManagedWindows&& other) noexcept = default;
ManagedWindows::~ManagedWindows() = default;

std::optional<ManagedWindows> ManagedWindows::open(const std::string& display, const std::string& hostName)
{
    if (display.empty()) {
        return std::nullopt;
    }
    ManagedWindows windows(std::make_unique<Connection>(display, hostName));
    return windows.m_connection->isManaged() ? std::optional(std::move(windows)) : std::nullopt;
}

std::vector<ManagedWindows::Window> ManagedWindows::closableWindows() const
{
    std::vector<Window> closable;
    for (const auto window : m_connection->windows()) {
        if (!m_connection->isOfThisMachine(window) || !m_connection->understandsClosing(window)) {
            continue;
        }
        if (const auto process = m_connection->processOf(window)) {
            closable.push_back({.identifier = window, .process = *process});
        }
    }
    return closable;
}

std::optional<std::int32_t> ManagedWindows::activeProcess() const
{
    const auto window = m_connection->activeWindow();
    return window && m_connection->isOfThisMachine(*window) ? m_connection->processOf(*window) : std::nullopt;
}

bool ManagedWindows::requestClose(const Window& window) const
{
    return m_connection->requestClose(window.identifier);
}

} // namespace PlatformDesktop
