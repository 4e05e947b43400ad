// What the description of a function says, and values as texts. Members that are missing are taken as empty.

export function baseOf(name) {
	return name.replace(/\.\d+$/, '');
}

/** The names of the fields of a record; a single value has one without a name. */
export function fieldsOf({ fields, value }) {
	return fields?.length > 1 ? fields : isRecord(value) ? Object.keys(value) : [''];
}

export function isRecord(value) {
	return typeof value === 'object' && value !== null && !('hex' in value);
}

export function partOf(value, field) {
	return field === '' ? value : value?.[field];
}

export function limitsOf(description, field) {
	const limits = description.limits ?? [];
	return limits.find((limit) => (limit.field ?? '') === field) ?? (limits.length === 1 ? limits[0] : undefined);
}

/** The values that a field can have, as they are printed, or null if it has a range. */
export function choicesOf(description, field) {
	const admitted = limitsOf(description, field)?.admitted;
	if (!admitted || admitted.length > 32) {
		return null;
	}
	const codes = Object.entries(description.codes ?? {});
	return admitted.map((number) => codes.find(([, code]) => code === number)?.[0] ?? number);
}

export function isSwitch(choices) {
	return choices?.length === 2 && choices[0] === 'off' && choices[1] === 'on';
}

/** A command, in contrast to a setting: what it does is not kept. */
export function isAction({ name, readable, writable, trigger }) {
	return writable && (trigger || !readable || /^(softtrigger|motorcontrol)$/.test(baseOf(name)));
}

/** Whether it acts on what is connected, so that each value is meant. */
export function actsOutside({ restore }) {
	return ['output', 'network', 'address'].includes(restore);
}

/** The number that a curve shows, or null. */
export function numberOf(description, value) {
	return typeof value === 'number' ? value : description.codes?.[value] ?? null;
}

export function print(value) {
	if (value === null || value === undefined) {
		return '–';
	}
	if (isRecord(value)) {
		return Object.values(value).join('counter' in value ? ':' : ', ');
	}
	return typeof value === 'object' ? value.hex.replace(/../g, '\\x$&') : String(value);
}

export function same(a, b) {
	return JSON.stringify(a) === JSON.stringify(b);
}

/** "0 – 511", or nothing if the value is not checked. */
export function printLimits(description) {
	const ranges = fieldsOf(description).map((field) => {
		const limits = limitsOf(description, field);
		return limits && !choicesOf(description, field) ? `${limits.min} – ${limits.max}` : '';
	});
	return ranges.every((range) => range === ranges[0]) ? ranges[0] : ranges.map((range) => range || '–').join(', ');
}

/** Why a function cannot be set or read, in words, or an empty text. */
export function explainState({ error, lockedBy, needs }) {
	const how = needs ? `needs ${needs}` : '';
	if (error === 'SDK4_ERR_NOT_IMPLEMENTED') {
		return 'not implemented: this camera does not have it';
	}
	if (lockedBy && lockedBy !== 'acquisition') {
		return `locked by ${lockedBy}${how && `, ${how}`}`;
	}
	return error ? `not available: ${error === 'SDK4_ERR_DISABLED' && how || error}` : '';
}
