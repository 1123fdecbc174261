#pragma once

#include "data/DemoData.h"
#include "http/Answer.h"

namespace demo {

/// The JSON interface behind the pages, under "/online/api/": sign-in and sign-out, the dashboard,
/// reports, the stations, imports, and reading and adding records of every collection.
class OnlineApi {
public:
    explicit OnlineApi(DemoData& data)
        : data_(data)
    {
    }

    /// The name is the part of the path after "/online/api/".
    Answer answer(const Request&, const std::string& name);

    /// What pages reported to have received for import: name, characters, sha256; oldest first.
    const nlohmann::json& receivedImports() const { return receivedImports_; }

private:
    Answer read(const Request&, const std::string& name) const;
    Answer write(const Request&, const std::string& name);
    Answer signIn(const nlohmann::json& body) const;
    Answer import(const nlohmann::json& body);
    Answer listing(const Collection&, const Request&) const;
    Answer drive(int id) const;

    DemoData& data_;
    nlohmann::json receivedImports_ = nlohmann::json::array();
};

} // namespace demo
