#pragma once

#include "net/Record.h"

#include <QList>
#include <QString>

#include <exception>

namespace kiv::net {

namespace KivAPI {

/// A new password and its confirmation differ.
class PasswordError : public std::exception {
public:
    const char *what() const noexcept override { return "New passwords do not match."; }
};

/// The account profile. The same keys make up a partial update.
struct UserProfile {
    std::optional<QString> id;
    std::optional<QString> email;
    std::optional<QString> fullName;
    std::optional<QString> avatarUrl;
    std::optional<QString> handle;
    std::optional<QString> companyName;
    std::optional<QString> companyWebsite;
    std::optional<QString> companySize;
    std::optional<QString> industry;
    std::optional<QString> jobTitle; ///< the one key in camel case
    std::optional<QList<QString>> preferredSectors;
    std::optional<QString> timeZone;
    std::optional<QString> preferredLanguage;
    std::optional<QString> preferredCountry;
    std::optional<QString> communicationStyle;
    std::optional<QString> workingHoursStart;
    std::optional<QString> workingHoursEnd;
    std::optional<QString> workingHoursDays;
    std::optional<bool> notificationEmail;
    std::optional<bool> notificationApprovals;
    std::optional<QString> defaultDataSourcesMode;
    std::optional<QString> preferredLlmProvider;
    std::optional<QString> preferredLlmModel;
    std::optional<QString> chatLlmProvider;
    std::optional<QString> chatLlmModel;
    std::optional<QString> orchestratorLlmProvider;
    std::optional<QString> orchestratorLlmModel;
    std::optional<QString> pipelineLlmProvider;
    std::optional<QString> pipelineLlmModel;
    std::optional<QString> browserSummaryLlmProvider;
    std::optional<QString> browserSummaryLlmModel;
    std::optional<QString> compactionLlmProvider;
    std::optional<QString> compactionLlmModel;
    std::optional<QString> workerGlobalRules;
    std::optional<QString> workerChatRules;
    std::optional<QString> workerUserFacts;
    std::optional<QString> sharedMd;
    std::optional<QString> decisionsMd;
    std::optional<QString> routineMd;
    std::optional<QString> toolsMd;
    std::optional<QString> goalsMd;
    std::optional<QString> glossaryMd;
    std::optional<QString> ownerLearnedMd;

    friend bool operator==(const UserProfile &, const UserProfile &) = default;
};

/// The subscription plan and its token budget.
struct PlanInfo {
    std::optional<QString> name;
    std::optional<QString> planKey;
    std::optional<double> tokenLimit;
    std::optional<double> spentTokens;
    std::optional<double> tokensLeft;

    friend bool operator==(const PlanInfo &, const PlanInfo &) = default;
};

struct WalletInfo {
    struct Wallet {
        std::optional<double> balanceCredits;
        std::optional<double> availableCredits;

        friend bool operator==(const Wallet &, const Wallet &) = default;
    };

    std::optional<Wallet> wallet;

    friend bool operator==(const WalletInfo &, const WalletInfo &) = default;
};

} // namespace KivAPI

// clang-format off
template <>
inline constexpr auto tableOf<KivAPI::UserProfile> = recordTable("KivAPI.UserProfile",
    Field{&KivAPI::UserProfile::id, "id"},
    Field{&KivAPI::UserProfile::email, "email"},
    Field{&KivAPI::UserProfile::fullName, "full_name"},
    Field{&KivAPI::UserProfile::avatarUrl, "avatar_url"},
    Field{&KivAPI::UserProfile::handle, "handle"},
    Field{&KivAPI::UserProfile::companyName, "company_name"},
    Field{&KivAPI::UserProfile::companyWebsite, "company_website"},
    Field{&KivAPI::UserProfile::companySize, "company_size"},
    Field{&KivAPI::UserProfile::industry, "industry"},
    Field{&KivAPI::UserProfile::jobTitle, "jobTitle"},
    Field{&KivAPI::UserProfile::preferredSectors, "preferred_sectors"},
    Field{&KivAPI::UserProfile::timeZone, "time_zone"},
    Field{&KivAPI::UserProfile::preferredLanguage, "preferred_language"},
    Field{&KivAPI::UserProfile::preferredCountry, "preferred_country"},
    Field{&KivAPI::UserProfile::communicationStyle, "communication_style"},
    Field{&KivAPI::UserProfile::workingHoursStart, "working_hours_start"},
    Field{&KivAPI::UserProfile::workingHoursEnd, "working_hours_end"},
    Field{&KivAPI::UserProfile::workingHoursDays, "working_hours_days"},
    Field{&KivAPI::UserProfile::notificationEmail, "notification_email"},
    Field{&KivAPI::UserProfile::notificationApprovals, "notification_approvals"},
    Field{&KivAPI::UserProfile::defaultDataSourcesMode, "default_data_sources_mode"},
    Field{&KivAPI::UserProfile::preferredLlmProvider, "preferred_llm_provider"},
    Field{&KivAPI::UserProfile::preferredLlmModel, "preferred_llm_model"},
    Field{&KivAPI::UserProfile::chatLlmProvider, "chat_llm_provider"},
    Field{&KivAPI::UserProfile::chatLlmModel, "chat_llm_model"},
    Field{&KivAPI::UserProfile::orchestratorLlmProvider, "orchestrator_llm_provider"},
    Field{&KivAPI::UserProfile::orchestratorLlmModel, "orchestrator_llm_model"},
    Field{&KivAPI::UserProfile::pipelineLlmProvider, "pipeline_llm_provider"},
    Field{&KivAPI::UserProfile::pipelineLlmModel, "pipeline_llm_model"},
    Field{&KivAPI::UserProfile::browserSummaryLlmProvider, "browser_summary_llm_provider"},
    Field{&KivAPI::UserProfile::browserSummaryLlmModel, "browser_summary_llm_model"},
    Field{&KivAPI::UserProfile::compactionLlmProvider, "compaction_llm_provider"},
    Field{&KivAPI::UserProfile::compactionLlmModel, "compaction_llm_model"},
    Field{&KivAPI::UserProfile::workerGlobalRules, "worker_global_rules"},
    Field{&KivAPI::UserProfile::workerChatRules, "worker_chat_rules"},
    Field{&KivAPI::UserProfile::workerUserFacts, "worker_user_facts"},
    Field{&KivAPI::UserProfile::sharedMd, "shared_md"},
    Field{&KivAPI::UserProfile::decisionsMd, "decisions_md"},
    Field{&KivAPI::UserProfile::routineMd, "routine_md"},
    Field{&KivAPI::UserProfile::toolsMd, "tools_md"},
    Field{&KivAPI::UserProfile::goalsMd, "goals_md"},
    Field{&KivAPI::UserProfile::glossaryMd, "glossary_md"},
    Field{&KivAPI::UserProfile::ownerLearnedMd, "owner_learned_md"});

template <>
inline constexpr auto tableOf<KivAPI::PlanInfo> = recordTable("KivAPI.PlanInfo",
    Field{&KivAPI::PlanInfo::name, "name"},
    Field{&KivAPI::PlanInfo::planKey, "plan_key"},
    Field{&KivAPI::PlanInfo::tokenLimit, "token_limit"},
    Field{&KivAPI::PlanInfo::spentTokens, "spent_tokens"},
    Field{&KivAPI::PlanInfo::tokensLeft, "tokens_left"});

template <>
inline constexpr auto tableOf<KivAPI::WalletInfo::Wallet> = recordTable("KivAPI.WalletInfo.Wallet",
    Field{&KivAPI::WalletInfo::Wallet::balanceCredits, "balance_credits"},
    Field{&KivAPI::WalletInfo::Wallet::availableCredits, "available_credits"});

template <>
inline constexpr auto tableOf<KivAPI::WalletInfo> = recordTable("KivAPI.WalletInfo",
    Field{&KivAPI::WalletInfo::wallet, "wallet"});
// clang-format on

} // namespace kiv::net
