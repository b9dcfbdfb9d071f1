// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/LogonTaskScheduler.h"

#include "platform/windows/Com.h"

#include <cstdio>

#include <initguid.h>
#include <windows.h>

#include <comdef.h>
#include <taskschd.h>

// The headers of mingw-w64 lack this interface of the system; later ones may have it.
#ifndef __ILogonTrigger_INTERFACE_DEFINED__
DEFINE_GUID(IID_ILogonTrigger, 0x72dade38, 0xfae4, 0x4b3e, 0xba, 0xf4, 0x5d, 0x00, 0x9a, 0xf0, 0x2b, 0x1c);

struct ILogonTrigger : public ITrigger {
    virtual HRESULT STDMETHODCALLTYPE get_Delay(BSTR *delay) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Delay(BSTR delay) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UserId(BSTR *user) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_UserId(BSTR user) = 0;
};
#endif

namespace windows
{

namespace
{

VARIANT emptyVariant()
{
    VARIANT variant;
    ::VariantInit(&variant);
    return variant;
}

/// True where the step succeeded. `format` takes the result code.
bool succeeded(HRESULT result, const char *format)
{
    if (SUCCEEDED(result))
        return true;
    std::printf(format, static_cast<unsigned>(result)); // NOLINT(clang-diagnostic-format-nonliteral)
    std::fflush(stdout);
    return false;
}

/// The service's root folder, where the task stands.
bool openRoot(Held<ITaskService> &service, Held<ITaskFolder> &root)
{
    if (!succeeded(::CoCreateInstance(CLSID_TaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskService,
                                      service.untyped()),
                   "Failed to create an instance of ITaskService: %x"))
        return false;
    return succeeded(service->Connect(emptyVariant(), emptyVariant(), emptyVariant(), emptyVariant()),
                     "ITaskService::Connect failed: %x") &&
           succeeded(service->GetFolder(Text(QStringLiteral("\\")), root.put()),
                     "Cannot get Root Folder pointer: %x");
}

bool putAuthor(ITaskDefinition *definition, const QString &author)
{
    Held<IRegistrationInfo> info;
    return succeeded(definition->get_RegistrationInfo(info.put()),
                     "\nCannot get identification pointer: %x") &&
           succeeded(info->put_Author(Text(author)), "\nCannot put identification info: %x");
}

bool putPrincipal(ITaskDefinition *definition)
{
    Held<IPrincipal> principal;
    return succeeded(definition->get_Principal(principal.put()), "\nCannot get principal pointer: %x") &&
           succeeded(principal->put_LogonType(TASK_LOGON_INTERACTIVE_TOKEN),
                     "\nCannot put principal info: %x") &&
           succeeded(principal->put_RunLevel(TASK_RUNLEVEL_HIGHEST), "\nCannot put principal info: %x");
}

bool putSettings(ITaskDefinition *definition)
{
    Held<ITaskSettings> settings;
    return succeeded(definition->get_Settings(settings.put()), "\nCannot get settings pointer: %x") &&
           succeeded(settings->put_StartWhenAvailable(VARIANT_TRUE), "\nCannot put setting info: %x") &&
           // Else the system ends it after three days, and on a PC that runs on its battery.
           succeeded(settings->put_ExecutionTimeLimit(Text(QStringLiteral("PT0S"))),
                     "\nCannot put setting info: %x") &&
           succeeded(settings->put_DisallowStartIfOnBatteries(VARIANT_FALSE),
                     "\nCannot put setting info: %x") &&
           succeeded(settings->put_StopIfGoingOnBatteries(VARIANT_FALSE), "\nCannot put setting info: %x");
}

bool putTrigger(ITaskDefinition *definition, const QString &user)
{
    Held<ITriggerCollection> triggers;
    Held<ITrigger> trigger;
    Held<ILogonTrigger> logon;
    return succeeded(definition->get_Triggers(triggers.put()), "\nCannot get trigger collection: %x") &&
           succeeded(triggers->Create(TASK_TRIGGER_LOGON, trigger.put()),
                     "\nCannot create the trigger: %x") &&
           succeeded(trigger->QueryInterface(IID_ILogonTrigger, logon.untyped()),
                     "\nQueryInterface call failed for ILogonTrigger: %x") &&
           succeeded(logon->put_Id(Text(QStringLiteral("Trigger1"))), "\nCannot put the trigger ID: %x") &&
           // A message that comes before the task bar is seen by nobody.
           succeeded(logon->put_Delay(Text(QStringLiteral("PT30S"))), "\nCannot put the trigger delay: %x") &&
           succeeded(logon->put_UserId(Text(user)), "\nCannot add user ID to logon trigger: %x");
}

bool putAction(ITaskDefinition *definition, const LogonTask &task)
{
    Held<IActionCollection> actions;
    Held<IAction> action;
    Held<IExecAction> exec;
    return succeeded(definition->get_Actions(actions.put()), "\nCannot get Task collection pointer: %x") &&
           succeeded(actions->Create(TASK_ACTION_EXEC, action.put()), "\nCannot create the action: %x") &&
           succeeded(action->QueryInterface(IID_IExecAction, exec.untyped()),
                     "\nQueryInterface call failed for IExecAction: %x") &&
           succeeded(exec->put_Arguments(Text(task.arguments)), "\nCannot set path of executable: %x") &&
           succeeded(exec->put_Path(Text(task.program)), "\nCannot set path of executable: %x");
}

bool registerTask(ITaskFolder *root, ITaskDefinition *definition, const QString &name)
{
    Held<IRegisteredTask> registered;
    VARIANT empty = emptyVariant();
    empty.vt = VT_BSTR;
    const Text noText{QString()};
    empty.bstrVal = noText;
    return succeeded(root->RegisterTaskDefinition(Text(name), definition, TASK_CREATE_OR_UPDATE,
                                                  emptyVariant(), emptyVariant(),
                                                  TASK_LOGON_INTERACTIVE_TOKEN, empty, registered.put()),
                     "\nError saving the Task : %x");
}

bool create(const LogonTask &task)
{
    Held<ITaskService> service;
    Held<ITaskFolder> root;
    Held<ITaskDefinition> definition;
    if (!openRoot(service, root))
        return false;
    root->DeleteTask(Text(task.name), 0);
    return succeeded(service->NewTask(0, definition.put()), "Failed to create a task definition: %x") &&
           putAuthor(definition.get(), task.author) && putPrincipal(definition.get()) &&
           putSettings(definition.get()) && putTrigger(definition.get(), task.author) &&
           putAction(definition.get(), task) && registerTask(root.get(), definition.get(), task.name);
}

} // namespace

// A thread that has COM in another mode uses it as it is, and has no count of its own to give back.
ComUse::ComUse() : m_taken(succeeded(::CoInitialize(nullptr), "\nCoInitializeEx failed: %x")) {}

ComUse::~ComUse()
{
    if (m_taken)
        ::CoUninitialize();
}

std::unique_ptr<ComUse> initializeCom()
{
    auto com = std::make_unique<ComUse>();
    if (!succeeded(::CoInitializeSecurity(nullptr, -1, nullptr, nullptr, RPC_C_AUTHN_LEVEL_PKT_PRIVACY,
                                          RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, 0, nullptr),
                   "\nCoInitializeSecurity failed: %x"))
        com.reset();
    return com;
}

void createLogonTask(const LogonTask &task)
{
    const ComUse com;
    if (create(task)) {
        std::printf("\n Success! Task successfully registered. ");
        std::fflush(stdout);
    }
}

void deleteLogonTask(const QString &name)
{
    const ComUse com;
    Held<ITaskService> service;
    Held<ITaskFolder> root;
    if (openRoot(service, root))
        root->DeleteTask(Text(name), 0);
}

} // namespace windows
