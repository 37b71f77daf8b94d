#include "driver/BrowserHolder.h"

using namespace Qt::StringLiterals;

cIEObject *BrowserHolder::operator->() const
{
    if (!mobjIE)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"Object variable or With block variable not set"_s);
    return mobjIE.get();
}

void BrowserHolder::set(std::unique_ptr<cIEObject> driver)
{
    mobjIE.reset(driver.release());
    connect(mobjIE.get(), &cIEObject::DocumentComplete, this, &BrowserHolder::DocumentComplete);
    connect(mobjIE.get(), &cIEObject::NewWindow2, this, &BrowserHolder::NewWindow2, Qt::DirectConnection);
    connect(mobjIE.get(), &cIEObject::WindowClosing, this, &BrowserHolder::WindowClosing);
    connect(mobjIE.get(), &cIEObject::Died, this, &BrowserHolder::Died);
    connect(mobjIE.get(), &cIEObject::loadingEnded, this, &BrowserHolder::loadingEnded);
    Q_EMIT changed();
}

void BrowserHolder::release()
{
    mobjIE.reset();
    Q_EMIT changed();
}
