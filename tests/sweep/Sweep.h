#pragma once

#include <iostream>
#include <map>
#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include "SpoiltExchange.h"
#include "sweep/Spoiling.h"

namespace zelvor::sweep {

/// What was run of an exchange, told at its end.
class Count {
public:
    explicit Count(std::string exchange) : exchange_(std::move(exchange)) {}
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;
    ~Count() {
        std::cout << "swept " << exchange_ << ": " << replies_ << " replies, " << runs_ << " runs, of which "
                  << prompts_ << " came to the prompt" << std::endl;
    }

    void AddReplies(std::size_t replies) { replies_ += replies; }
    void AddRun(bool isPrompted) {
        ++runs_;
        prompts_ += isPrompted ? 1 : 0;
    }

private:
    std::string exchange_;
    std::size_t replies_ = 0;
    int runs_ = 0;
    int prompts_ = 0;
};

/// A run, with the bytes that it is made of. Session is one of the exchanges that the fuzz targets run, which look at
/// what they have to keep to by themselves; Rules make it of ExchangeInputs.
template<typename Rules>
class Run {
public:
    Run(const Rules& rules, Bytes radio, Bytes user)
        : courseBytes_(rules.Course()), radioBytes_(std::move(radio)), userBytes_(std::move(user)),
          session_(rules.Make({course_, radio_, user_})) {
        session_->Run();
    }

    [[nodiscard]] const typename Rules::Session& Session() const { return *session_; }

private:
    Bytes courseBytes_;
    Bytes radioBytes_;
    Bytes userBytes_;
    fuzz::FuzzInput course_{courseBytes_.data(), courseBytes_.size()};
    fuzz::FuzzInput radio_{radioBytes_.data(), radioBytes_.size()};
    fuzz::FuzzInput user_{userBytes_.data(), userBytes_.size()};
    std::unique_ptr<typename Rules::Session> session_;
};

/// Runs an exchange undisturbed, and then once for every one of its replies, spoilt in every way, and every answer.
///
/// Rules tell what is told of the exchange: Course(), Make(inputs), Timeout in milliseconds, IsNoticed(reply, spoiling)
/// where it is told whether the prompt comes, ExpectDone(run, undisturbed, spoilt, reply) and
/// ExpectGivenUp(run, undisturbed, spoilt).
template<typename Rules>
void SweepAll(const Rules& rules, Count& count) {
    const Run<Rules> undisturbed(rules, {}, {});
    const std::vector<fuzz::SpoiltRadio::Reply>& replies = undisturbed.Session().Radio().Replies();
    ASSERT_TRUE(undisturbed.Session().Radio().IsUnspoilt());
    ASSERT_FALSE(undisturbed.Session().User().HasGivenUp());
    count.AddReplies(replies.size());
    for (std::size_t i = 0; i < replies.size(); ++i) {
        const fuzz::SpoiltRadio::Reply& reply = replies[i];
        for (const Spoiling spoiling : AllSpoilings) {
            for (const Answer answer : {Answer::Retry, Answer::Cancel, Answer::RetryInVain}) {
                const Case spoilt{.reply = static_cast<int>(i) + 1, .spoiling = spoiling, .answer = answer};
                if (Exists(spoilt, reply)) {
                    RunCase(rules, undisturbed, spoilt, reply, count);
                }
            }
        }
    }
}

template<typename Rules>
void RunCase(const Rules& rules, const Run<Rules>& undisturbed, const Case& spoilt,
             const fuzz::SpoiltRadio::Reply& reply, Count& count) {
    SCOPED_TRACE(TextOf(spoilt, reply));
    const Run<Rules> run(rules, RadioBytes(spoilt, reply.bytes, rules.Timeout), UserBytes(spoilt));
    const fuzz::FuzzedUser& user = run.Session().User();
    const bool isPrompted = user.Retries() > 0 || user.HasGivenUp();
    count.AddRun(isPrompted);
    ASSERT_FALSE(run.Session().Radio().IsUnspoilt()) << "the fault has not fired";
    if (const std::optional<bool> isNoticed = rules.IsNoticed(reply, spoilt.spoiling)) {
        EXPECT_EQ(isPrompted, *isNoticed);
        EXPECT_EQ(user.Retries(), *isNoticed && spoilt.answer != Answer::Cancel ? 1 : 0);
        EXPECT_EQ(user.HasGivenUp(), *isNoticed && spoilt.answer != Answer::Retry);
    }
    if (user.HasGivenUp()) {
        rules.ExpectGivenUp(run.Session(), undisturbed.Session(), spoilt);
    } else {
        rules.ExpectDone(run.Session(), undisturbed.Session(), spoilt, reply);
    }
}

/// What is told of most replies: a fault inside the time-out goes unnoticed, and a reply that is not there in time, or
/// not whole, leads to the prompt. Not told of bytes behind a reply, nor of what comes when something else is awaited;
/// of a wrong one the exchange knows more.
[[nodiscard]] inline std::optional<bool> IsUsuallyNoticed(Spoiling spoiling) {
    switch (spoiling) {
    case Spoiling::InPieces:
    case Spoiling::LateInTime:
        return false;
    case Spoiling::Garbage:
    case Spoiling::Overdue:
        return std::nullopt;
    default:
        return true;
    }
}

} // namespace zelvor::sweep
