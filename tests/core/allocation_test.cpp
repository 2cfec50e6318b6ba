// What becomes of a product's settings when memory runs out anywhere in a change: each allocation
// fails once, alone and together with all that follow.
#include "testproduct.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <optional>

namespace {

/// Which allocation is the first to fail, and how many do; counted while it lives.
struct Failing
{
    Failing(long first, bool all)
    {
        left = first;
        always = all;
        failed = false;
        armed = true;
    }
    ~Failing() { armed = false; }
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;

    static bool Fails()
    {
        if (!armed || --left >= 0 || (!always && failed))
            return false;
        failed = true;
        return true;
    }

    static inline bool armed = false;
    static inline bool always = false;
    static inline bool failed = false;
    static inline long left = 0;
};

void* Allocate(std::size_t size, std::size_t alignment)
{
    const std::size_t rounded = (size + alignment) / alignment * alignment;
    void* const memory = Failing::Fails() ? nullptr : std::aligned_alloc(alignment, rounded);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void* operator new(std::size_t size)
{
    return Allocate(size, alignof(std::max_align_t));
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return Allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

namespace {

using Node = IFeatureNode::Ptr;

/// All that can be seen of a model.
struct Seen
{
    std::vector<o7::FeatureValue> values;
    std::vector<InterpretedState> states;
    std::vector<FeatureIdWithContext> features;

    bool operator==(const Seen&) const = default;

    void Add(const Node& node)
    {
        features.push_back(node->GetId());
        values.emplace_back();
        if (node->IsSpecified())
            node->GetValue(values.back());
        const auto capabilities = node->GetCapabilities();
        states.push_back(capabilities->GetInterpretedState());
        if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
            for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i)
                states.push_back(options->GetOptionWithState(i).GetInterpretedState());
        }
        for (std::size_t i = 0; i < node->GetNumChildren(); ++i)
            Add(node->GetChild(i));
    }
};

/// Counts what it is told, and takes no memory for it.
class Listener : public IObserver
{
public:
    void ProcessNotification(const INotification&, unsigned int) override { ++told; }
    int told = 0;
};

class Allocations : public testing::Test
{
protected:
    Allocations()
    {
        std::vector<o7::PackageError> errors;
        package = o7::LoadProductPackage(std::string(O7_PRODUCTS_DIR "/production-p900"), errors);
        model = o7::CreateDataModel(*package, strings);
        model->RegisterObserver(listener, kAll, FeatureIdWithContext(), kKind);
        Walk(Top());
    }
    ~Allocations() override
    {
        model->UnregisterObserver(listener, kAll, FeatureIdWithContext(), kKind);
    }

    Node Top() const { return model->GetFullListOfFeatures().GetNode(); }
    Seen See() const
    {
        Seen seen;
        seen.Add(Top());
        return seen;
    }
    void Walk(const Node& list)
    {
        for (std::size_t i = 0; i < list->GetNumChildren(); ++i) {
            const Node child = list->GetChild(i);
            if (child->GetKind() == o7::FeatureKind::ListOfFeatures)
                Walk(child);
            else
                (child->GetItemKind() != o7::FeatureKind::Unsupported ? lists : leaves)
                    .push_back(child);
        }
    }

    /// Another value for every nth setting, beginning with one.
    void ChangeEvery(std::size_t nth, std::size_t first) const
    {
        for (std::size_t i = first; i < leaves.size(); i += nth)
            leaves[i]->SetValue(other[i]);
    }
    void AddItems() const
    {
        for (const Node& list : lists) {
            for (int count = 0; count < 2; ++count) {
                const Node item = list->CreateItem();
                if (item && item->GetNumChildren() > 0)
                    item->GetChild(0)->SetIsSpecified(false);
            }
        }
    }
    void DeleteItems() const
    {
        for (const Node& list : lists) {
            if (list->GetNumChildren() > 1)
                list->DeleteItems({0});
        }
    }
    /// The values are made beforehand, so that what fails is the model's.
    void PrepareOthers()
    {
        for (const Node& leaf : leaves) {
            o7::FeatureValue value;
            leaf->GetValue(value);
            const auto capabilities = leaf->GetCapabilities();
            if (const auto* flag = std::get_if<bool>(&value)) {
                value = !*flag;
            } else if (const auto* options =
                           dynamic_cast<const OptionCapability*>(capabilities.get())) {
                value = options->GetOptionWithState(options->GetNumberOfValues() - 1).GetValueId();
            } else if (const auto* text = std::get_if<CXString>(&value)) {
                value = *text + L"x";
            }
            other.push_back(value);
        }
    }

    /// Runs the action with each allocation failing until none is left to fail; `check` sees each
    /// outcome.
    void FailEach(const std::function<void()>& action, const std::function<void()>& check) const
    {
        for (const bool all : {false, true}) {
            bool failed = true;
            for (long n = 0; failed; ++n) {
                SCOPED_TRACE(testing::Message() << "allocation " << n << (all ? " and all" : ""));
                {
                    const Failing failing(n, all);
                    try {
                        action();
                    } catch (const std::bad_alloc&) {
                        // the case in question
                    }
                }
                failed = Failing::failed;
                check();
                if (testing::Test::HasFailure())
                    return;
            }
        }
    }

    static constexpr unsigned kKind = DataModelIds::kObserverFeature;
    const SettingsInstanceId kAll{DataModelIds::kSettingsCurrent};
    test::Strings strings;
    std::unique_ptr<o7::ProductPackage> package;
    std::unique_ptr<IDataModel> model;
    Listener listener;
    std::vector<Node> leaves;
    std::vector<Node> lists;
    std::vector<o7::FeatureValue> other;
};

TEST_F(Allocations, ARollbackRestoresEverythingAndNeedsNoMemory)
{
    PrepareOthers();
    const Seen before = See();
    FailEach(
        [&] {
            const auto outer = model->OpenTransaction();
            ChangeEvery(29, 0);
            {
                const auto inner = model->OpenTransaction();
                ChangeEvery(29, 1);
                AddItems();
                inner->Close(true);
            }
            {
                const auto inner = model->OpenTransaction();
                DeleteItems();
                ChangeEvery(31, 2);
            }
            DeleteItems();
        },
        [&] {
            EXPECT_EQ(See(), before);
            EXPECT_FALSE(model->IsModified());
        });
    EXPECT_GT(listener.told, 0);
}

TEST_F(Allocations, AChangeOutsideATransactionIsDoneOrNotDone)
{
    PrepareOthers();
    const Seen before = See();
    FailEach(
        [&] {
            ChangeEvery(13, 0);
            AddItems();
            DeleteItems();
        },
        [&] {
            model->RevertToAccepted();
            EXPECT_EQ(See(), before);
            EXPECT_FALSE(model->IsModified());
        });
}

TEST_F(Allocations, WhoCouldNotRegisterIsNotTold)
{
    const FeatureIdWithContext feature = leaves.front()->GetId();
    PrepareOthers();
    FailEach(
        [&] {
            auto observer = std::make_unique<Listener>();
            model->RegisterObserver(*observer, kAll, feature, kKind);
            // No longer needed, and for the rest of the action nothing fails.
            Failing::armed = false;
            model->UnregisterObserver(*observer, kAll, feature, kKind);
        },
        [&] {
            leaves.front()->SetValue(other.front());
            model->RevertToAccepted();
        });
}

} // namespace
