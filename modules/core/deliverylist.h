#pragma once

#include "iobserver.h"
#include "notificationbundle.h"

#include <array>
#include <memory>
#include <vector>

namespace o7 {

/// Who is told of a change of one feature alone, in order and close together, and the bundles that
/// say it. Made from the feature's registrations when first needed; what changes during a delivery
/// waits for the next, except that an observer that goes is struck out at once.
struct DeliveryList
{
    struct Slot
    {
        IObserver* observer; ///< Null: struck out.
        unsigned kind;
        unsigned wanted; ///< ChangeBits
    };

    std::vector<Slot> slots;
    bool valid = false;
    bool simple = false; ///< Nobody is to be told twice in one bundle.
    int deliveries = 0;  ///< Under way.
    /// By ChangeBits: for a value, a state, or both.
    std::array<std::unique_ptr<const NotificationBundle>, 4> bundles;
};

} // namespace o7
