// A job ticket: read or refused; what was read can be written and read again.
#include "../../modules/core/jobticket.h"
#include "../../modules/core/loadedpackage.h"
#include "fuzzmodel.h"

#include <cstdlib>
#include <string>

namespace {

using o7::JobTicket;
using o7::ProductDescription;

void ReadAndWrite(const ProductDescription& product, std::string_view text)
{
    o7::FeatureDescription root;
    root.list = std::shared_ptr<const o7::ListDescription>(std::shared_ptr<void>(), &product.root);
    JobTicket ticket{o7::DefaultSettings(root), {}, {}};
    std::string fault;
    if (!o7::ReadJobTicket(product, text, ticket, fault)) {
        if (fault.empty())
            std::abort();
        return;
    }
    const std::string written = o7::WriteJobTicket(product, ticket);
    JobTicket again{o7::DefaultSettings(root), {}, {}};
    if (!o7::ReadJobTicket(product, written, again, fault) ||
        o7::WriteJobTicket(product, again) != written)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const ProductDescription& product =
        *dynamic_cast<const o7::LoadedPackage&>(o7::fuzz::Package()).GetDescription();
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    ReadAndWrite(product, text);
    // As the settings of a ticket with a checksum that fits, so that the entries are reached.
    ReadAndWrite(product, o7::SealJobTicket(product, text));
    return 0;
}
