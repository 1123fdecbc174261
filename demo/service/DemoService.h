#pragma once

#include "data/DemoData.h"
#include "http/Answer.h"
#include "http/RequestLog.h"
#include "service/OnlineApi.h"

#include <memory>

namespace demo {

/// The whole service as a function from request to answer.
class DemoService {
public:
    /// The log must outlive the service.
    DemoService(RequestLog&, bool isHostile);

    Answer answer(const Request&);

private:
    struct Route;
    static const Route routes[];

    Answer home(const Request&);
    Answer online(const Request&);
    Answer welcome(const Request&);
    Answer api(const Request&);
    Answer exports(const Request&);
    Answer asset(const Request&);
    Answer page(const Request&);
    Answer requests(const Request&);
    Answer reset(const Request&);
    Answer state(const Request&);
    Answer echo(const Request&);
    Answer addNote(const Request&);
    Answer notes(const Request&);
    Answer search(const Request&);
    Answer reverse(const Request&);
    Answer updates(const Request&);

    RequestLog& log_;
    bool isHostile_;
    std::unique_ptr<DemoData> data_;
    std::unique_ptr<OnlineApi> api_;
    nlohmann::json notes_ = nlohmann::json::array(); ///< What pages of tests want to be known.
};

} // namespace demo
