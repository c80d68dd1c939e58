/* How a program in any language uses Orvane's objects without its C++ headers: this is all there is
 * to know. Plain C; sizes and layouts are those of the platform's C compiler.
 *
 * A program loads liborvane at run time and looks up DllGetClassObject, which gives a class object,
 * which makes a control. From there everything goes by the names in docs/object-model.md:
 *
 *     orvane_class* factory;
 *     orvane_object* control;
 *     get_class(ORVANE_TEMPLATE_CTL, &factory, &error);
 *     factory->calls->CreateInstance(factory, &control, &error);
 *     control->calls->GetIdOfName(control, "CreateFactory", &id, &error);
 *     control->calls->Invoke(control, id, ORVANE_CALL, NULL, 0, &result, &error);
 *
 * examples/hosts/plain_c.c is a whole program.
 *
 * Status. Every function that can fail returns ORVANE_OK or the number of its error, and fills in
 * the error record unless that is NULL. Nothing has been changed then. The numbers are those of
 * orvane/automation/AutomationError.h and the five below. No exception leaves a function.
 *
 * References. Each object or class object that a function hands out comes with one reference, which
 * is the caller's: Release gives it up, AddRef takes another. The same object has the same address
 * for as long as one holds it. What hangs on an object (a series on its chart) may be held longer
 * than that.
 *
 * Texts are UTF-8 and end in a NUL that is not counted.
 *
 * Versions. This is version 2. Tables of functions only ever grow at their end, so a program may
 * use a library of its own version or a later one. One that may meet an earlier library looks for
 * OrvaneComponentVersion first, which version 1 does not have.
 *
 * Threads. There are no locks: one thread at a time may be in the library. */
#ifndef ORVANE_HOST_COMPONENT_H
#define ORVANE_HOST_COMPONENT_H

#include <stddef.h> /* NOLINT(modernize-deprecated-headers): this is C. */
#include <stdint.h> /* NOLINT(modernize-deprecated-headers) */

#ifdef __cplusplus
extern "C" {
#endif

typedef uint32_t orvane_status;

#define ORVANE_OK 0u
#define ORVANE_FALSE 1u                   /* DllCanUnloadNow: not yet. */
#define ORVANE_ERROR_POINTER 0x80004003u  /* A pointer is NULL that must not be. */
#define ORVANE_ERROR_FAILED 0x80004005u   /* Anything that has no number of its own. */
#define ORVANE_ERROR_MEMORY 0x8007000Eu   /* Out of memory. */
#define ORVANE_ERROR_ARGUMENT 0x80070057u /* An access or a type of value that is not below. */
#define ORVANE_ERROR_NO_CLASS 0x80040111u /* DllGetClassObject: no such class. */

/* What went wrong: for people, cut at the end of the arrays. */
typedef struct orvane_error {
  orvane_status number;
  char source[64]; /* "Orvane" or "Nodewright" */
  char description[1024];
} orvane_error;

/* Types of values. Where a member wants another type than it is given, numbers, truth values and
 * texts that read as numbers go into one another; the rest is a type mismatch. */
enum {
  ORVANE_EMPTY = 0,
  ORVANE_BOOLEAN = 1, /* as.boolean: 0 or not */
  ORVANE_INT32 = 2,   /* as.int32 */
  ORVANE_SINGLE = 3,  /* as.single */
  ORVANE_DOUBLE = 4,  /* as.number */
  ORVANE_STRING = 5,  /* as.string, count bytes */
  ORVANE_NUMBERS = 6, /* as.numbers, count of them; NULL when there are none */
  ORVANE_OBJECT = 7   /* as.object; NULL for no object */
};

typedef struct orvane_object orvane_object;

/* Arguments stay the caller's: the library copies what it keeps, and takes references of its own.
 * A result is the caller's to give back with ClearValue, its object included. */
typedef struct orvane_value {
  int32_t type;
  size_t count; /* of a string or of numbers, else 0 */
  union {
    int32_t boolean;
    int32_t int32;
    float single;
    double number;
    const char* string;
    const double* numbers;
    orvane_object* object;
  } as;
} orvane_value;

/* What Invoke does with a member. */
enum {
  ORVANE_CALL = 1, /* Calls a method. */
  ORVANE_GET = 2,  /* Reads a property; its indexes are the arguments. */
  ORVANE_LET = 4   /* Writes a property; its value is the last argument, behind the indexes. */
};

/* Handles an event. The arguments stay the library's, and last as long as the call. What is not
 * ORVANE_OK is an error: the call that raised the event ends with it, with the source and
 * description of `error`, which is the handler's to fill in and never NULL. */
typedef orvane_status (*orvane_handler)(void* context, const orvane_value* arguments, size_t count,
                                        orvane_error* error);

typedef struct orvane_object_calls {
  uint32_t (*AddRef)(orvane_object* self);  /* The number of references afterwards. */
  uint32_t (*Release)(orvane_object* self); /* The same; at 0 the object is gone. */

  /* The name of the object's class, such as "AreaGraph"; it stays valid. */
  const char* (*ClassName)(orvane_object* self);

  /* The identifier of the member called `name`, in any case. It is the same for all objects of the
   * class. */
  orvane_status (*GetIdOfName)(orvane_object* self, const char* name, int32_t* id,
                               orvane_error* error);

  /* Calls, reads or writes member `id`. `arguments` may be NULL when `count` is 0, and `result`
   * when nothing is to be had of it; otherwise it is set even on failure, to ORVANE_EMPTY. */
  orvane_status (*Invoke)(orvane_object* self, int32_t id, int32_t access,
                          const orvane_value* arguments, size_t count, orvane_value* result,
                          orvane_error* error);

  /* Frees what a result holds and makes it ORVANE_EMPTY. */
  void (*ClearValue)(orvane_value* result);

  /* Version 2. Has `handler` called with `context` each time that the object raises the event
   * called `event`, in any case, until Unsubscribe. It ends with the object itself, not with the
   * last reference to it: what hangs on a chart lives as long as the chart. */
  orvane_status (*Subscribe)(orvane_object* self, const char* event, orvane_handler handler,
                             void* context, int32_t* subscription, orvane_error* error);

  /* Version 2. Takes a handler out again: `subscription` is what Subscribe gave for it. */
  orvane_status (*Unsubscribe)(orvane_object* self, int32_t subscription, orvane_error* error);
} orvane_object_calls;

struct orvane_object {
  const orvane_object_calls* calls;
};

typedef struct orvane_class orvane_class;

typedef struct orvane_class_calls {
  uint32_t (*AddRef)(orvane_class* self);
  uint32_t (*Release)(orvane_class* self);

  /* A new object of the class. */
  orvane_status (*CreateInstance)(orvane_class* self, orvane_object** object, orvane_error* error);
} orvane_class_calls;

struct orvane_class {
  const orvane_class_calls* calls;
};

/* The one class that a program can create: the control OrvaneTemplateCtl of the type library
 * OrvaneTemplate. */
#define ORVANE_TEMPLATE_CTL "{6B1D7C52-93E4-4F0A-8E55-2A7C90D4B3F1}"

/* The version of this interface that the library has: 2 or more. */
uint32_t OrvaneComponentVersion(void);
typedef uint32_t (*orvane_OrvaneComponentVersion)(void);

/* The class object of the class with identifier `class_id`, in any case. */
orvane_status DllGetClassObject(const char* class_id, orvane_class** object, orvane_error* error);
typedef orvane_status (*orvane_DllGetClassObject)(const char*, orvane_class**, orvane_error*);

/* ORVANE_OK when no object and no class object is held by anyone outside the library, so that it
 * may be unloaded, else ORVANE_FALSE. */
orvane_status DllCanUnloadNow(void);
typedef orvane_status (*orvane_DllCanUnloadNow)(void);

/* Lists the class in the user's file of classes, with its type library and the path of this
 * library: a second time changes nothing. The file is orvane/classes.ini in the folder
 * $XDG_CONFIG_HOME, or $HOME/.config where that is not set:
 *
 *     [{6B1D7C52-93E4-4F0A-8E55-2A7C90D4B3F1}]
 *     Class=OrvaneTemplateCtl
 *     TypeLibrary=OrvaneTemplate
 *     Library=/usr/lib/liborvane.so.0
 *
 * A program that looks for the class finds the library to load there. */
orvane_status DllRegisterServer(void);
typedef orvane_status (*orvane_DllRegisterServer)(void);

/* Takes the class off that file, and the file away when nothing else is in it. It is no error when
 * the class is not there. */
orvane_status DllUnregisterServer(void);
typedef orvane_status (*orvane_DllUnregisterServer)(void);

/* Writes the three PROTO files that worlds refer to into `folder` (UTF-8), which is made when
 * missing: a world beside them finds them. All are written or none. */
orvane_status OrvaneWriteProtos(const char* folder, orvane_error* error);
typedef orvane_status (*orvane_OrvaneWriteProtos)(const char*, orvane_error*);

#ifdef __cplusplus
}
#endif

#endif
