#pragma once
// ProductData: the product in use: who it is and where its files are. Virtual, so that tests can
// stand in for it.

#include "bytebuffer.h"
#include "cxstring.h"
#include "productinfo.h"
#include "utilapi.h"

/// What can be asked of a product. The first group are files and folders, the second texts.
enum class InfoType
{
    ProductFolder = 1,
    UrlFile = 2,
    HelpFile = 3,
    ResourceFolder = 4,

    ModelName = 16,
    UniqueId = 17,
    ProductId = 18,
    Languages = 19 ///< parted by commas
};

class O7UTIL_API ProductData
{
public:
    /// `folder` is the full path of the product folder, without a separator at its end.
    ProductData(const CXString& folder, const ProductInfo& info);
    virtual ~ProductData();
    ProductData(const ProductData&) = delete;
    ProductData& operator=(const ProductData&) = delete;

    virtual CXString GetModelName() const;
    /// The value enum of the controller family, which selects the UI description.
    virtual int GetControllerFamily() const;
    /// A text, or the file or folder name as the package has it. False, and `info` untouched, when
    /// the product has none.
    virtual bool GetInfo(InfoType type, CXString& info) const;
    /// The full path of a file or folder of the product, whether or not it exists. False, and
    /// `path` untouched, when the product has none, the type is a text, or the package names a
    /// place outside its own folder.
    virtual bool GetPath(InfoType type, CXString& path) const;
    /// Reads the whole file. False, and `contents` untouched, when there is none or it cannot be
    /// read.
    virtual bool LoadFile(InfoType type, ByteBuffer& contents) const;
    virtual CXString GetPrinterProductUniqueId() const;
    virtual bool IsValidated() const;

private:
    CXString m_folder;
    ProductInfo m_info;
};
