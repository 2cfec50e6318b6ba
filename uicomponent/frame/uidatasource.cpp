#include "uidatasource.h"

#include "productdata.h"
#include "uidata.h"
#include "uitrayhandler.h"

UIDataSource::UIDataSource(HINSTANCE module, ProductData& productData)
    : m_module(module), m_productData(productData), m_trayHandler(std::make_unique<UITrayHandler>())
{
}

UIDataSource::~UIDataSource() = default;

std::unique_ptr<UIData> UIDataSource::createDescription(UIMode mode,
                                                        DataModelIds::tagValueEnum family,
                                                        Workflow workflow) const
{
    auto description = std::make_unique<UIData>(mode, family, workflow);
    description->setName(m_productData.GetModelName());
    return description;
}

void UIDataSource::setEventProcessor(UIEventProcessor* eventProcessor)
{
    m_eventProcessor = eventProcessor;
    m_trayHandler->setEventProcessor(eventProcessor);
}
