#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <libsoup/soup.h>
#include <map>
#include <memory>
#include <string>
#include <sys/socket.h>
#include <vector>

namespace desktop {

// A small https server on the loopback, which answers while the main loop runs.
class PageServer {
public:
    struct Page {
        std::string body;
        std::map<std::string, std::string> headers = {};
        int status = 200;
        bool isSilent = false; // takes the request and never answers
        bool isCutOff = false; // announces more than it sends, then hangs up
        bool isStalled = false; // sends its body and never comes to the end
    };

    struct Request {
        std::string path;
        std::string query; // decoded, each item as "name=value;" in the order of the names
        std::map<std::string, std::string> headers; // by lower-case name
    };

    std::map<std::string, Page> pages;
    std::vector<Request> requests; // oldest first

    PageServer() { start(0); }
    ~PageServer() { stop(); }

    PageServer(const PageServer&) = delete;
    PageServer& operator=(const PageServer&) = delete;

    std::string url(const std::string& path, const std::string& host = "localhost") const
    {
        return "https://" + host + ":" + std::to_string(port_) + path;
    }

    std::size_t requestCount(const std::string& path) const
    {
        return static_cast<std::size_t>(std::ranges::count(requests, path, &Request::path));
    }

    // The port refuses connections until `restart`.
    void stop()
    {
        silent_.clear();
        if (server_)
            soup_server_disconnect(server_);
        g_clear_object(&server_);
    }

    void restart() { start(port_); }

    // Answers that request at last, which has met a silent page, with what its page is by now.
    void answerLate(std::size_t request)
    {
        auto* message = silent_.at(request).get();
        answer(message, requests.at(request).path, request);
        soup_server_message_unpause(message);
    }

private:
    void start(int port)
    {
        g_autoptr(GTlsCertificate) certificate =
            g_tls_certificate_new_from_file(VELMARO_CERTIFICATES "/server.pem", nullptr);
        server_ = soup_server_new("tls-certificate", certificate, nullptr);
        soup_server_add_handler(server_, nullptr, &PageServer::handle, this, nullptr);
        g_autoptr(GError) error = nullptr;
        soup_server_listen_local(server_, static_cast<guint>(port),
            static_cast<SoupServerListenOptions>(
                SOUP_SERVER_LISTEN_HTTPS | SOUP_SERVER_LISTEN_IPV4_ONLY),
            &error);
        ASSERT_EQ(error, nullptr) << error->message;
        g_autoslist(GUri) uris = soup_server_get_uris(server_);
        port_ = g_uri_get_port(static_cast<GUri*>(uris->data));
    }

    static void handle(
        SoupServer*, SoupServerMessage* message, const char* path, GHashTable* query, gpointer data)
    {
        auto& self = *static_cast<PageServer*>(data);
        self.requests.push_back({path, textOf(query), headersOf(message)});
        self.answer(message, path, self.requests.size() - 1);
    }

    void answer(SoupServerMessage* message, const std::string& path, std::size_t request)
    {
        const auto found = pages.find(path);
        const Page page = found == pages.end() ? Page{.body = "", .status = 404} : found->second;
        if (page.isSilent) {
            silent_[request] = {
                static_cast<SoupServerMessage*>(g_object_ref(message)), g_object_unref};
            soup_server_message_pause(message);
            return;
        }

        auto* headers = soup_server_message_get_response_headers(message);
        for (const auto& [name, value] : page.headers)
            soup_message_headers_replace(headers, name.c_str(), value.c_str());
        if (page.isStalled) {
            soup_server_message_set_status(message, static_cast<guint>(page.status), nullptr);
            soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
            soup_message_body_append(soup_server_message_get_response_body(message),
                SOUP_MEMORY_COPY, page.body.data(), page.body.size());
            return;
        }
        if (page.isCutOff) {
            soup_message_headers_set_content_length(headers, 10'000'000);
            soup_message_headers_replace(headers, "Connection", "close");
            g_signal_connect(message, "wrote-body-data", G_CALLBACK(&PageServer::hangUp), nullptr);
        }

        const auto tag = page.headers.find("ETag");
        const auto& known = requests.at(request).headers;
        if (tag != page.headers.end() && known.contains("if-none-match")
            && known.at("if-none-match") == tag->second) {
            soup_server_message_set_status(message, 304, nullptr);
            return;
        }
        soup_server_message_set_status(message, static_cast<guint>(page.status), nullptr);
        const auto type = page.headers.contains("Content-Type") ? page.headers.at("Content-Type")
                                                                : "text/html; charset=utf-8";
        soup_server_message_set_response(
            message, type.c_str(), SOUP_MEMORY_COPY, page.body.data(), page.body.size());
    }

    static void hangUp(SoupServerMessage* message)
    {
        auto* socket = soup_server_message_get_socket(message);
        const linger atOnce{.l_onoff = 1, .l_linger = 0};
        setsockopt(g_socket_get_fd(socket), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        g_socket_close(socket, nullptr);
    }

    static std::string textOf(GHashTable* query)
    {
        std::map<std::string, std::string> items;
        GHashTableIter iterator;
        gpointer name = nullptr, value = nullptr;
        if (query)
            g_hash_table_iter_init(&iterator, query);
        while (query && g_hash_table_iter_next(&iterator, &name, &value))
            items[static_cast<const char*>(name)] = static_cast<const char*>(value);
        std::string text;
        for (const auto& [key, item] : items)
            text += key + "=" + item + ";";
        return text;
    }

    static std::map<std::string, std::string> headersOf(SoupServerMessage* message)
    {
        std::map<std::string, std::string> headers;
        soup_message_headers_foreach(
            soup_server_message_get_request_headers(message),
            [](const char* name, const char* value, gpointer found) {
                g_autofree char* lower = g_ascii_strdown(name, -1);
                (*static_cast<std::map<std::string, std::string>*>(found))[lower] = value;
            },
            &headers);
        return headers;
    }

    SoupServer* server_ = nullptr;
    int port_ = 0;
    std::map<std::size_t, std::shared_ptr<SoupServerMessage>>
        silent_; // by the number of the request
};

} // namespace desktop
