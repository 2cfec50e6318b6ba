// Works out all constraints of a package from scratch, straight from its JSON: slow, plain, and
// with no code in common with the model.
#pragma once

#include "listoffeaturesref.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <string>
#include <vector>

namespace test {

class BruteForce
{
public:
    /// `package` is the parsed package.json, `all` the full list of a model made from it.
    BruteForce(const nlohmann::json& package, const ListOfFeaturesRef& all);

    /// Reads the model's values, works out every state, and compares each feature's and option's
    /// with the model's: one line for each that differs.
    std::vector<std::string> Differences();

private:
    struct Feature
    {
        const nlohmann::json* json;
        IFeatureNode::Ptr node;
        Feature* list;         ///< Around it; null for the top.
        nlohmann::json value;  ///< As the model says; null: none.
        nlohmann::json forced; ///< As worked out here; null: nothing forces it.
        bool cleared = false;
        std::vector<std::unique_ptr<Feature>> members;
    };
    /// One limit: what it affects while all conditions hold.
    struct Limit
    {
        std::vector<const nlohmann::json*> when;
        const nlohmann::json* test;   ///< Of the values affected; null: all of the feature.
        const nlohmann::json* effect; ///< null: of an invalid combination.
        std::string kind;
        Feature* list;
        Feature* target;
    };

    void Read(Feature& list);
    void ReadValue(Feature& feature);
    void CollectLimits(Feature& list);
    void AddLimits(Feature& list, const nlohmann::json& constraint);
    void Settle();
    bool SettleClearing();
    bool SettleForcing();
    nlohmann::json ForcedBy(const Limit& limit) const;
    bool Holds(const Feature& list, const nlohmann::json& condition) const;
    bool AllHold(const Limit& limit) const;
    static Feature& Find(const Feature& list, const nlohmann::json& reference);
    static const nlohmann::json& Now(const Feature& feature);
    static bool Asks(const Feature& feature, const nlohmann::json& test,
                     const nlohmann::json& value);
    void Compare(const Feature& feature, std::vector<std::string>& differences) const;
    bool IsIdle(const Feature& feature) const;
    bool IsLastChoice(const Feature& feature) const;
    std::string StateOf(const Feature& feature) const;
    std::string StateOfOption(const Feature& feature, const std::string& option) const;
    nlohmann::json DefaultOf(const Feature& feature) const;

    const nlohmann::json& m_package;
    ListOfFeaturesRef m_all;
    std::unique_ptr<Feature> m_top;
    std::vector<Limit> m_limits;
};

} // namespace test
