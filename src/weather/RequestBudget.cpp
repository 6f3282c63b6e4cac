#include "RequestBudget.h"

#include <algorithm>

namespace zephyrix {

bool RequestBudget::allows(Instant now) const {
    return std::all_of(limits_.begin(), limits_.end(), [&](const RequestLimit& limit) {
        const Instant begin = now.addingSeconds(-limit.seconds);
        const auto first = std::upper_bound(requests_.begin(), requests_.end(), begin);
        return requests_.end() - first < limit.requests;
    });
}

void RequestBudget::count(Instant now) {
    // A clock that was set back must not spoil the order.
    requests_.push_back(requests_.empty() ? now : std::max(now, requests_.back()));
    double longest = 0.0;
    for (const RequestLimit& limit : limits_)
        longest = std::max(longest, limit.seconds);
    while (requests_.front() <= now.addingSeconds(-longest))
        requests_.pop_front();
}

}  // namespace zephyrix
