// A product package: either a model that answers everything, or errors.
#include "fuzzmodel.h"

#include "packageanalysis.h"

#include <cstdlib>
#include <vector>

namespace {

/// Asks why each feature is as it is and what each value would bring, and applies the first answer.
void AskEverything(IDataModel& model, const IFeatureNode& list)
{
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto child = list.GetChild(i);
        model.GetStateReasons(child->GetId(), ValueId());
        const auto capabilities = child->GetCapabilities();
        if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
            for (std::size_t at = 0; at < options->GetNumberOfValues(); ++at) {
                const ValueId& value = options->GetOptionWithState(at).GetValueId();
                const auto proposal = model.ProposeChange(child->GetId(), value);
                if (!proposal.possible)
                    continue;
                model.PreviewAlternative(proposal.alternatives.front());
                if (!model.ApplyAlternative(proposal.alternatives.front()))
                    std::abort();
            }
        }
        child->CreateItem();
        AskEverything(model, *child);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<o7::PackageError> errors;
    const auto package = o7::ParseProductPackage(text, "fuzz.json", errors);
    if ((package == nullptr) == errors.empty())
        std::abort();
    if (package) {
        const auto model = o7::CreateDataModel(*package, o7::fuzz::Strings());
        const auto top = model->GetFullListOfFeatures().GetNode();
        o7::fuzz::WalkThrough(*top);
        o7::AnalyseProductPackage(*package);
        AskEverything(*model, *top);
        o7::fuzz::WalkThrough(*top);
    }
    return 0;
}
