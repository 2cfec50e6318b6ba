#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "productsession.h"
#include "uidata.h"
#include "uirecords.h"

namespace o7::bench {

/// A made-up interface over a made-up product: pages of the same size with so many windows each, in
/// groups and columns. Its texts are those of a real product.
class SyntheticPages
{
public:
    /// Windows of one block, the least a page can have. A page has a whole number of blocks.
    static constexpr int kBlock = 5;
    /// Molecules that the first control of a greying page greys out, and as many that it does not.
    static constexpr int kGreyed = 20;

    /// @param textFolder  folder of the real product
    /// @param windows     of each page; a multiple of kBlock
    SyntheticPages(const std::wstring& textFolder, int pages, int windows);
    /// One page, whose first control is a check box that greys out kGreyed molecules.
    static std::unique_ptr<SyntheticPages> greying(const std::wstring& textFolder);

    SyntheticPages(const SyntheticPages&) = delete;
    SyntheticPages& operator=(const SyntheticPages&) = delete;

    const UIData& data() const { return *m_data; }
    ProductSession& session() const { return *m_session; }
    /// Opens the sheet; modal.
    void run() const;

private:
    explicit SyntheticPages(const std::wstring& textFolder);

    template <class Record> UIRecords<Record> keep(std::vector<Record> records);
    UIMoleculeRecord check(int feature);
    /// A label and a box.
    UIMoleculeRecord box(UIMoleculeKind kind, UIControlKind control, int feature,
                         UIExtraRecord extra = {});
    /// What shows a feature: the number tells its kind.
    UIMoleculeRecord molecule(int feature);
    UIMoleculeRecord text();
    UIMoleculeRecord group(std::vector<UIMoleculeRecord> children);
    std::vector<UIMoleculeRecord> block(int number);
    void describe(int pages, const std::vector<std::vector<UIMoleculeRecord>>& columns);

    // Records point to each other, so what is kept never moves.
    std::deque<std::vector<UIControlRecord>> m_controls;
    std::deque<std::vector<UIMoleculeRecord>> m_molecules;
    std::deque<std::vector<UIColumnRecord>> m_columns;
    std::vector<UIContainerRecord> m_pages;
    UIRootRecord m_root;
    std::unique_ptr<ProductSession> m_session;
    std::unique_ptr<UIData> m_data;
};

} // namespace o7::bench
