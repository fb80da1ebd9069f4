#pragma once

#include "HttpClient.h"

#include <deque>
#include <utility>

namespace quillon {

/// A network that keeps every request until the test answers it, in order.
class FakePoster final : public FormPoster {
public:
    void post(const FormRequest& request, Completion completion) override
    {
        ++posted;
        last = request;
        pending_.push_back(std::move(completion));
    }

    void answer(const QByteArray& body) { end({body, std::nullopt}); }
    void fail() { end({{}, Error{QStringLiteral("Network"), 7, QStringLiteral("unplugged")}}); }

    int posted = 0;
    FormRequest last;

private:
    void end(const HttpResult& result)
    {
        const Completion completion = std::move(pending_.front());
        pending_.pop_front();
        completion(result);
    }

    std::deque<Completion> pending_;
};

} // namespace quillon
