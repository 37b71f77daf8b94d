#include "util/Errors.h"

#include <new>

using namespace Qt::StringLiterals;

RuntimeError currentError()
{
    try {
        throw;
    } catch (const RuntimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return {ErrorNumber::OutOfMemory, u"Out of memory"_s};
    } catch (const std::exception &error) {
        return {ErrorNumber::InternalError, QString::fromUtf8(error.what())};
    } catch (...) {
        return {ErrorNumber::InternalError, u"Internal error"_s};
    }
}
