#include "util/Errors.h"

#include <new>

RuntimeError currentError()
{
    try {
        throw;
    } catch (const RuntimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return {ErrorNumber::OutOfMemory, QStringLiteral("Out of memory")};
    } catch (const std::exception &error) {
        return {ErrorNumber::InternalError, QString::fromUtf8(error.what())};
    } catch (...) {
        return {ErrorNumber::InternalError, QStringLiteral("Internal error")};
    }
}
