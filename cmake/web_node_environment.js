// Node's environment variables, so that the runner sees TMPDIR and the rest as the native one does.
Module['preRun'] = Module['preRun'] || [];
Module['preRun'].push(function () {
  if (typeof process === 'object' && process.env) Object.assign(ENV, process.env);
});
